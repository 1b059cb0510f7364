// SPDX-License-Identifier: MIT
// Scene files: nodes read and written per second and their size, as scenes grow, and the memory that a large
// file takes while it is read.
#include "Ratios.h"
#include "world_scene.h"

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <cstdlib>
#include <malloc.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

constexpr int NodesPerSeparator = 3; // itself, a transform, a cube

SoRef<SoSeparator> worldOf(std::int64_t nodes)
{
    return makeWorld(static_cast<int>(nodes / NodesPerSeparator));
}

void countNodes(benchmark::State& state, std::size_t bytes)
{
    const auto nodes = static_cast<double>(state.range(0));
    state.counters["nodes/s"] = benchmark::Counter(nodes, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["text/node"] = static_cast<double>(bytes) / nodes;
}

void writeScene(benchmark::State& state)
{
    const auto world = worldOf(state.range(0));
    std::size_t size = 0;
    for ([[maybe_unused]] auto turn : state)
        size = SoSceneFile::writeText(world.get()).size();
    countNodes(state, size);
}
BENCHMARK(writeScene)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void readScene(benchmark::State& state)
{
    const std::string text = SoSceneFile::writeText(worldOf(state.range(0)).get());
    std::string error;
    double memory = 0;
    for ([[maybe_unused]] auto turn : state) {
        const auto before = mallinfo2().uordblks;
        const auto scene = SoSceneFile::readText(text, "bench", error);
        state.PauseTiming();
        memory = static_cast<double>(mallinfo2().uordblks - before);
        state.ResumeTiming();
    }
    countNodes(state, text.size());
    state.counters["memory/node"] = memory / static_cast<double>(state.range(0));
}
BENCHMARK(readScene)->Arg(10'000)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

void readPoints(benchmark::State& state)
{
    const SoRef<SoPoints> points(new SoPoints);
    for (int i = 0; i < state.range(0); ++i)
        points->points.set1Value(i, SbVec3f(0.1F, 1.25F, -3e-7F) * static_cast<float>(i));
    const std::string text = SoSceneFile::writeText(points.get());
    std::string error;
    for ([[maybe_unused]] auto turn : state)
        benchmark::DoNotOptimize(SoSceneFile::readText(text, "bench", error));
    state.SetBytesProcessed(static_cast<std::int64_t>(text.size()) * state.iterations());
}
BENCHMARK(readPoints)->Arg(10'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);

std::string writeLargeFile(std::size_t bytes)
{
    const char* folder = std::getenv("TMPDIR");
    std::string path = std::string(folder ? folder : "/tmp") + "/scopix_bench.XXXXXX";
    std::FILE* file = fdopen(mkstemp(path.data()), "wb");
    if (!file)
        return {};
    std::fputs("#Xsg V1.0 utf8\nPoints {\n    points: [ ", file);
    for (int i = 0; static_cast<std::size_t>(std::ftell(file)) < bytes; ++i)
        std::fprintf(file, "%d.25 -%d.125 0.5, ", i, i);
    std::fputs("]\n}\n", file);
    std::fclose(file);
    return path;
}

// In a process of its own, which does nothing else.
void measureLargeFile()
{
    constexpr std::size_t Size = 100'000'000;
    const std::string path = writeLargeFile(Size);
    const pid_t child = fork();
    if (child == 0) {
        std::string error;
        _exit(SoSceneFile::read(path, error) ? 0 : 1);
    }
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    unlink(path.c_str());
    if (status != 0)
        std::printf("The file of 100 MB could not be read.\n");
    else
        std::printf("a file of 100 MB: read in %.2f s, with at most %.0f MB of memory\n\n",
                    static_cast<double>(usage.ru_utime.tv_sec) +
                        static_cast<double>(usage.ru_utime.tv_usec) / 1e6,
                    static_cast<double>(usage.ru_maxrss) / 1000);
}

} // namespace

int main(int argc, char** argv)
{
    measureLargeFile();
    return bench::run(
        argc, argv,
        {
            {"write 1,000,000 nodes, to 100,000", "writeScene/1000000", "writeScene/100000", "linear: 10"},
            {"read 1,000,000 nodes, to 100,000", "readScene/1000000", "readScene/100000", "linear: 10"},
            {"read 1,000,000 points, to 10,000", "readPoints/1000000", "readPoints/10000", "linear: 100"},
        });
}
