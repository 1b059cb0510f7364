// SPDX-License-Identifier: MIT
// Processes that tests start. None goes on as a copy of the test, whose other threads may have held locks
// that nobody releases in the copy; and nobody waits for one without end.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>

/// How a process has ended.
struct ProcessEnd {
    bool isInTime = true;
    int status = -1; // its exit status; -1 where a signal ended it
    int signal = 0;

    bool isGood() const { return isInTime && status == 0; }
};

/// A program in a process of its own, whose standard output comes here. It is killed at the end. Any thread.
class ChildProcess
{
public:
    using Words = std::vector<std::string>;

    /// For any process of a test, under a sanitizer and on a busy machine.
    static constexpr std::chrono::seconds Patience{120};

    /// The program's path and its arguments. One that cannot be started has ended at once.
    explicit ChildProcess(Words command);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t pid() const { return m_pid; }
    bool isRunning();
    void signal(int number) const;
    /// The next line that it writes; what there is of it where the process ends or takes too long.
    std::string readLine();
    /// All that it goes on to write until it ends or takes too long.
    std::string readAll();
    /// Waits for its end; one that takes longer is killed.
    ProcessEnd waitForEnd(std::chrono::milliseconds patience = Patience);

protected:
    ChildProcess() = default;
    void setPid(pid_t pid) { m_pid = pid; }

private:
    bool read(char& letter, std::chrono::steady_clock::time_point last) const;
    bool reap(int options);

    pid_t m_pid = -1;
    int m_output = -1;
    ProcessEnd m_end;
};

/// What a test has done in a process of its own: this test's program is started again, and does nothing else.
/// At namespace scope, with a name that no other act of the program has:
///
///     const ChildAct touch("touch", [](const ChildAct::Words& words) { return make(words[0]); });
///     EXPECT_TRUE(touch.isDone({path}));
class ChildAct
{
public:
    using Words = ChildProcess::Words;
    /// Whether all went well, which the exit status says. What it throws did not.
    using Act = bool (*)(const Words& words);

    ChildAct(const char* name, Act act);

    /// The command of such a process.
    Words command(const Words& words) const;
    /// Does it, and waits for it.
    bool isDone(const Words& words) const;
    /// Does it in several processes at the same time, one for each of these.
    bool areDone(const std::vector<Words>& each) const;

    /// These words for each of so many processes, followed by its number.
    static std::vector<Words> numbered(int count, const Words& words);

    /// For main(): whether this process was started for an act, and doing it, for the exit status.
    static bool isAsked(int argc, char** argv);
    static int perform(int argc, char** argv);

private:
    std::string m_name;
};

/// Does `act` in a copy of this process, which has `patience` for it. For the few tests for which nothing
/// else does: of what a copy does, and where all would have to be set up again many times.
class ProcessCopy : public ChildProcess
{
public:
    ProcessCopy(std::chrono::seconds patience, const std::function<bool()>& act);
};
