// SPDX-License-Identifier: MIT
// What it costs to measure, pick, draw, read and write a world of separators, each with a transform and a
// cube. The argument is the number of separators; time per separator should not grow with it.
//
// A frame after one change stands beside a full redraw: the scene is as new as after its file was opened, so
// that the list of what to draw and all buffers are made. Both are measured as whole frames and without
// drawing, since the processor's filling of the picture is the same for both and hides the rest.
#include "Ratios.h"
#include "world_measures.h"

#include <xsg/files/SoSceneFile.h>

namespace
{

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

void sizes(benchmark::internal::Benchmark* each)
{
    each->RangeMultiplier(10)->Range(1000, 100000)->Unit(benchmark::kMillisecond);
}

void wallSizes(benchmark::internal::Benchmark* each)
{
    sizes(each);
    each->UseRealTime(); // the drawing is on other threads
}

} // namespace

BENCHMARK(boxAfresh)->Apply(sizes);
BENCHMARK(boxAfterOneChange)->Apply(sizes);
BENCHMARK(pick)->Apply(sizes);
BENCHMARK_CAPTURE(frame, unchanged, Before::Nothing, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, oneField, Before::OneField, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, oneChild, Before::OneChild, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, opened, Before::Opening, Drawing::Done)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, unchangedUndrawn, Before::Nothing, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, oneFieldUndrawn, Before::OneField, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, oneChildUndrawn, Before::OneChild, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, oneLightUndrawn, Before::OneLight, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, oneTextureUndrawn, Before::OneTexture, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK_CAPTURE(frame, openedUndrawn, Before::Opening, Drawing::LeftOut)->Apply(wallSizes);
BENCHMARK(writeText)->Apply(sizes);
BENCHMARK(readText)->Apply(sizes);

int main(int argc, char** argv)
{
    const auto growth = [](const char* what, const std::string& name) {
        return bench::Ratio{what, name + "/100000", name + "/1000", "100 separators for each"};
    };
    return bench::run(
        argc, argv,
        {{"redraw of 100,000: full over one field", "frame/opened/100000", "frame/oneField/100000",
          "aim: above 1"},
         {"redraw of 100,000, drawing left out: full over one field", "frame/openedUndrawn/100000",
          "frame/oneFieldUndrawn/100000", "aim: above 100"},
         {"redraw of 100,000: another child over one field", "frame/oneChild/100000", "frame/oneField/100000",
          ""},
         {"boxes of 100,000: all again over one field", "boxAfresh/100000", "boxAfterOneChange/100000", ""},
         growth("redraw after one field, drawing left out, growth with size", "frame/oneFieldUndrawn"),
         growth("redraw after a child, drawing left out, growth with size", "frame/oneChildUndrawn"),
         growth("redraw after a light, drawing left out, growth with size", "frame/oneLightUndrawn"),
         growth("redraw after a texture, drawing left out, growth with size", "frame/oneTextureUndrawn"),
         growth("box computed again, growth with size", "boxAfresh"),
         growth("box after one change, growth with size", "boxAfterOneChange"),
         growth("picking, growth with size", "pick"),
         growth("writing, growth with size", "writeText"),
         growth("reading, growth with size", "readText")});
}
