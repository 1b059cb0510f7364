// SPDX-License-Identifier: MIT
// What measuring frames costs, beside an atomic addition and a look at the clock, and of the cheapest frame.
#include "Ratios.h"

#include <xsg/frames/SoFramePhase.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/render/SoOffscreenRenderer.h>

#include <benchmark/benchmark.h>

#include <atomic>

namespace
{

void atomicAdd(benchmark::State& state)
{
    std::atomic<std::int64_t> sum{0};
    for (auto _ : state)
        benchmark::DoNotOptimize(sum.fetch_add(1, std::memory_order_relaxed));
}
BENCHMARK(atomicAdd);

void clockRead(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(SoFrameLog::now());
}
BENCHMARK(clockRead);

void phaseWithoutFrame(benchmark::State& state)
{
    for (auto _ : state)
        const SoFramePhase phase(SoFrame::Upload);
}
BENCHMARK(phaseWithoutFrame);

void phase(benchmark::State& state)
{
    xsg::FrameClock clock;
    clock.begin();
    clock.run();
    for (auto _ : state)
        const SoFramePhase phase(SoFrame::Upload);
    clock.stop();
}
BENCHMARK(phase);

void mark(benchmark::State& state)
{
    SoFrameLog log;
    if (state.range(0))
        log.addUser();
    for (auto _ : state)
        log.mark("Change Material.shininess");
}
BENCHMARK(mark)->Arg(0)->Arg(1);

void addFrame(benchmark::State& state)
{
    SoFrameLog log;
    log.addUser();
    SoFrame frame;
    for (auto _ : state)
        benchmark::DoNotOptimize(log.add(frame));
}
BENCHMARK(addFrame);

// All that a picture of an empty scene does for the log, but asking the graphics card, which FrameMeter
// limits by itself.
void frameRecord(benchmark::State& state)
{
    SoFrameLog log;
    log.addUser();
    xsg::FrameClock clock;
    for (auto _ : state) {
        clock.begin();
        clock.run();
        {
            const SoFramePhase phase(SoFrame::Traverse);
        }
        {
            const SoFramePhase phase(SoFrame::Cull);
        }
        clock.stop();
        SoFrame frame;
        clock.fillIn(frame);
        benchmark::DoNotOptimize(log.add(frame));
    }
}
BENCHMARK(frameRecord);

// The argument: whether a log is there and on.
void emptyPicture(benchmark::State& state)
{
    SoFrameLog log;
    SoOffscreenRenderer renderer;
    renderer.setSamples(1);
    if (state.range(0)) {
        log.addUser();
        renderer.getRenderer().setFrameLog(&log);
    }
    SoRef<SoSeparator> root(new SoSeparator);
    SoPixels pixels;
    renderer.render(root.get(), nullptr, 16, 16, pixels); // which prepares shaders
    double seconds = 0;
    for (auto _ : state) {
        if (!renderer.render(root.get(), nullptr, 16, 16, pixels))
            state.SkipWithError(renderer.getErrorText().c_str());
        seconds += renderer.getRenderer().getStatistics().seconds;
    }
    state.counters["drawing_us"] = benchmark::Counter(seconds * 1e6, benchmark::Counter::kAvgIterations);
}
BENCHMARK(emptyPicture)->Arg(0)->Arg(1)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    return bench::run(
        argc, argv,
        {{"a frame's record / the cheapest picture", "frameRecord", "emptyPicture/0", "aim: 0.01"}});
}
