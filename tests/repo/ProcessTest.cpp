// SPDX-License-Identifier: MIT
// No process goes on as a copy of another, in which locks stay held by threads that it does not have; and
// nobody waits for a process without end.
#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <mutex>
#include <regex>
#include <set>
#include <string>

namespace
{

namespace fs = std::filesystem;
using Names = std::set<std::string>;

// The sources of the tree in which something is called so.
Names sourcesWith(const std::string& pattern)
{
    const std::regex calls(pattern);
    const fs::path root = SCOPIX_SOURCE_DIR;
    Names found;
    for (const char* folder : {"xsg", "live", "extender", "editing", "src", "host", "plugins", "examples",
                               "tests", "bench", "fuzz"}) {
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            if (entry.path().extension() != ".cpp" && entry.path().extension() != ".h")
                continue;
            std::ifstream file(entry.path());
            const std::string text{std::istreambuf_iterator<char>(file), {}};
            if (std::regex_search(text, calls))
                found.insert(fs::relative(entry.path(), root));
        }
    }
    return found;
}

std::mutex s_lock;

const ChildAct takeTheLock("takeTheLock", [](const ChildAct::Words& words) {
    const std::lock_guard<std::mutex> locked(s_lock);
    return words == ChildAct::Words{"a b", ""};
});

} // namespace

TEST(Processes, OfTestsHoldNoLockThatTheTestHolds)
{
    const std::lock_guard<std::mutex> locked(s_lock);
    EXPECT_TRUE(takeTheLock.isDone({"a b", ""}));
    EXPECT_FALSE(takeTheLock.isDone({"a", "b"}));
}

TEST(Processes, OfTestsEndInTime)
{
    const ProcessEnd end = ChildProcess({"/bin/sleep", "1000"}).waitForEnd(std::chrono::milliseconds(1));
    EXPECT_FALSE(end.isInTime);
    EXPECT_EQ(end.signal, SIGKILL);
    EXPECT_FALSE(ChildProcess({"/nothing/there"}).waitForEnd().isGood());
}

TEST(Processes, GoOnAsCopiesNowhereElse)
{
    const Names expected{
        "bench/scene_files.cpp",             // before it has any other thread
        "tests/attacks/torture/Process.cpp", // becomes another program at once
        "tests/support/ChildProcess.cpp",    // with an alarm
    };
    EXPECT_EQ(sourcesWith("\\bv?fork *\\( *\\)"), expected);
}

TEST(Processes, AreNotWaitedForWithoutEnd)
{
    EXPECT_EQ(sourcesWith("\\bwaitFor(Started|Finished|ReadyRead|BytesWritten) *\\( *-1 *\\)"), Names());
    const Names expected{
        "bench/commands.cpp",             // measures what has an end
        "bench/scene_files.cpp",          // the same
        "tests/support/ChildProcess.cpp", // those that were killed
    };
    EXPECT_EQ(sourcesWith("\\bwait(pid|4)? *\\([^;]*, *0 *(, *&?\\w+ *)?\\)|\\breap\\(0\\)"), expected);
}
