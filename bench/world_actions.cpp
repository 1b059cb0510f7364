// What it costs to measure, pick, draw, read and write a world of separators, each with a transform and a
// cube. The argument is the number of separators; time per separator should not grow with it.
#include "Ratios.h"
#include "world_scene.h"

#include <xsg/actions/SoBoundingBoxAction.h>
#include <xsg/actions/SoRayPickAction.h>
#include <xsg/io/SoSceneFile.h>
#include <xsg/render/SoOffscreenRenderer.h>

namespace
{

void perSeparator(benchmark::State& state)
{
    state.counters["perSeparator"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void boxAfresh(benchmark::State& state)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        state.PauseTiming();
        forgetBoxes(*world);
        state.ResumeTiming();
        benchmark::DoNotOptimize(SoBoundingBoxAction().getBox(world.get()));
    }
    perSeparator(state);
}

void boxAfterOneChange(benchmark::State& state)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    SoBoundingBoxAction().getBox(world.get());
    float x = 0;
    for (auto _ : state) {
        lastTransform(*world).translation.setValue(x += 0.001F, 0, 0);
        benchmark::DoNotOptimize(SoBoundingBoxAction().getBox(world.get()));
    }
    perSeparator(state);
}

void pick(benchmark::State& state)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    const SbVec3f target = lastTransform(*world).translation.getValue();
    SoRayPickAction action;
    action.pick(world.get(), {{0, 0, 10}, {0, 0, -1}}); // remembers boxes
    for (auto _ : state)
        benchmark::DoNotOptimize(action.pick(world.get(), {target + SbVec3f(0, 0, 10), {0, 0, -1}}));
    perSeparator(state);
}

// Small pictures, so that walking and drawing calls are what is measured, not filling pixels.
void draw(benchmark::State& state, const std::function<void(SoSeparator&)>& change)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    const SoRef<SoPerspectiveCamera> camera(new SoPerspectiveCamera);
    camera->viewAll(SoBoundingBoxAction().getBox(world.get()), 1);
    SoOffscreenRenderer renderer;
    renderer.setSamples(1);
    SoPixels pixels;
    if (!renderer.render(world.get(), camera.get(), 64, 64, pixels)) {
        state.SkipWithError(renderer.getErrorText().c_str());
        return;
    }
    double seconds = 0;
    for (auto _ : state) {
        change(*world);
        renderer.render(world.get(), camera.get(), 64, 64, pixels);
        seconds += renderer.getRenderer().getStatistics().seconds;
    }
    state.counters["rendererSeconds"] = benchmark::Counter(seconds / static_cast<double>(state.iterations()));
    perSeparator(state);
}

void drawUnchanged(benchmark::State& state)
{
    draw(state, [](SoSeparator&) {});
}

void drawAfterOneChange(benchmark::State& state)
{
    float x = 0;
    draw(state, [&](SoSeparator& world) { lastTransform(world).translation.setValue(x += 0.001F, 0, 0); });
}

void drawAfterAChangeOfChildren(benchmark::State& state)
{
    draw(state, [](SoSeparator& world) {
        world.addChild(new SoSeparator);
        world.removeChild(world.getNumChildren() - 1);
    });
}

void writeText(benchmark::State& state)
{
    const auto world = makeWorld(static_cast<int>(state.range(0)));
    std::size_t bytes = 0;
    for (auto _ : state)
        bytes = SoSceneFile::writeText(world.get()).size();
    state.counters["bytesPerSeparator"] = static_cast<double>(bytes) / static_cast<double>(state.range(0));
    perSeparator(state);
}

void readText(benchmark::State& state)
{
    const std::string text = SoSceneFile::writeText(makeWorld(static_cast<int>(state.range(0))).get());
    std::string error;
    for (auto _ : state)
        benchmark::DoNotOptimize(SoSceneFile::readText(text, "bench", error));
    perSeparator(state);
}

} // namespace

BENCHMARK(boxAfresh)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(boxAfterOneChange)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(pick)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(drawUnchanged)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(drawAfterOneChange)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(drawAfterAChangeOfChildren)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK(writeText)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
BENCHMARK(readText)->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    const auto growth = [](const char* what, const std::string& name) {
        return bench::Ratio{what, name + "/100000", name + "/1000", "100 separators for each"};
    };
    return bench::run(argc, argv,
                      {{"drawing 100,000: another child over one field", "drawAfterAChangeOfChildren/100000/real_time",
                        "drawAfterOneChange/100000/real_time", ""},
                       {"boxes of 100,000: all afresh over one field", "boxAfresh/100000", "boxAfterOneChange/100000", ""},
                       growth("box afresh, growth with size", "boxAfresh"),
                       growth("box after one change, growth with size", "boxAfterOneChange"),
                       growth("picking, growth with size", "pick"),
                       growth("writing, growth with size", "writeText"),
                       growth("reading, growth with size", "readText")});
}
