// SPDX-License-Identifier: MIT
// What commands take, from the program's start to its end, beside a program that links the same libraries and
// reads and writes the same files; and what they take to start, beside one that does nothing.
#include "Ratios.h"
#include "world_scene.h"

#include <xsg/files/SoSceneFile.h>

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{

namespace fs = std::filesystem;

constexpr int NodesPerSeparator = 3; // itself, a transform, a cube

/// Two scenes of about this many nodes, of which one in a hundred differs.
struct Files {
    explicit Files(std::int64_t nodes)
    {
        std::string pattern = (fs::temp_directory_path() / "scopix_bench.XXXXXX").string();
        folder = mkdtemp(pattern.data());
        const auto world = makeWorld(static_cast<int>(nodes / NodesPerSeparator));
        std::string error;
        SoSceneFile::write(world.get(), a(), error);
        for (int i = 0; i < world->getNumChildren(); i += 100)
            if (SoGroup* group = world->getChild(i)->asGroup(); group && group->getNumChildren() > 1)
                group->getChild(1)->setName("changed");
        SoSceneFile::write(world.get(), b(), error);
    }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;
    ~Files() { fs::remove_all(folder); }
    std::string a() const { return folder + "/a.xsg"; }
    std::string b() const { return folder + "/b.xsg"; }
    std::string out() const { return folder + "/out.xsg"; }

    std::string folder;
};

double secondsOf(const timeval& time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

// Its processor time, which a busy machine does not lengthen.
double timeOfProgram(benchmark::State& state, std::vector<std::string> words)
{
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t child = -1;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    constexpr int MostStatus = 1; // of a diff that finds something
    if (!WIFEXITED(status) || WEXITSTATUS(status) > MostStatus)
        state.SkipWithError("the program failed");
    return secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
}

void readAndWrite(benchmark::State& state)
{
    const Files files(state.range(0));
    for ([[maybe_unused]] auto turn : state)
        state.SetIterationTime(timeOfProgram(state, {PLAIN_PROGRAM, "write", files.out(), files.a()}));
}

void readBoth(benchmark::State& state)
{
    const Files files(state.range(0));
    for ([[maybe_unused]] auto turn : state)
        state.SetIterationTime(timeOfProgram(state, {PLAIN_PROGRAM, "read", files.a(), files.b()}));
}

void readBothAndWrite(benchmark::State& state)
{
    const Files files(state.range(0));
    for ([[maybe_unused]] auto turn : state)
        state.SetIterationTime(
            timeOfProgram(state, {PLAIN_PROGRAM, "write", files.out(), files.a(), files.b()}));
}

void convert(benchmark::State& state)
{
    const Files files(state.range(0));
    for ([[maybe_unused]] auto turn : state)
        state.SetIterationTime(timeOfProgram(state, {SCOPIX_PROGRAM, "convert", files.a(), files.out()}));
}

void set(benchmark::State& state)
{
    const Files files(state.range(0));
    for ([[maybe_unused]] auto turn : state)
        state.SetIterationTime(timeOfProgram(
            state, {SCOPIX_PROGRAM, "set", files.a(), "/Separator[7]/Cube.width=x*2", "-o", files.out()}));
}

void diff(benchmark::State& state)
{
    const Files files(state.range(0));
    for ([[maybe_unused]] auto turn : state)
        state.SetIterationTime(timeOfProgram(state, {SCOPIX_PROGRAM, "diff", files.a(), files.b()}));
}

void startProgram(benchmark::State& state)
{
    const Files files(NodesPerSeparator);
    for ([[maybe_unused]] auto turn : state)
        state.SetIterationTime(timeOfProgram(state, {SCOPIX_PROGRAM, "print", files.a()}));
}

void startNothing(benchmark::State& state)
{
    for ([[maybe_unused]] auto turn : state)
        state.SetIterationTime(timeOfProgram(state, {PLAIN_PROGRAM}));
}

#define FOR_SIZES(act)                                                                                       \
    BENCHMARK(act)                                                                                           \
        ->RangeMultiplier(10)                                                                                \
        ->Range(1'000, 1'000'000)                                                                            \
        ->UseManualTime()                                                                                    \
        ->Iterations(1)                                                                                      \
        ->Unit(benchmark::kMillisecond)
FOR_SIZES(readAndWrite);
FOR_SIZES(readBoth);
FOR_SIZES(readBothAndWrite);
FOR_SIZES(convert);
FOR_SIZES(set);
FOR_SIZES(diff);
BENCHMARK(startProgram)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);
BENCHMARK(startNothing)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    std::vector<bench::Ratio> ratios{
        {"start print, to a program that does nothing", "startProgram", "startNothing", "<= 2"}};
    for (const char* size : {"1000", "10000", "100000", "1000000"}) {
        const std::string at = std::string("/") + size;
        ratios.push_back({"convert, to reading and writing", "convert" + at, "readAndWrite" + at, "<= 1.3"});
        ratios.push_back({"set, to reading and writing", "set" + at, "readAndWrite" + at, "<= 1.3"});
        ratios.push_back(
            {"diff, to reading both and writing one", "diff" + at, "readBothAndWrite" + at, "<= 1.3"});
        ratios.push_back({"diff, to reading both", "diff" + at, "readBoth" + at, ""});
    }
    return bench::run(argc, argv, ratios);
}
