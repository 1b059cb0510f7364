// SPDX-License-Identifier: MIT
#include "support/ChildProcess.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <exception>
#include <list>
#include <map>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace
{

using Clock = std::chrono::steady_clock;

constexpr const char* DoesAct = "--child-act";

std::map<std::string, ChildAct::Act>& allActs()
{
    static std::map<std::string, ChildAct::Act> acts;
    return acts;
}

ProcessEnd endOf(int status)
{
    return {true, WIFEXITED(status) ? WEXITSTATUS(status) : -1, WIFSIGNALED(status) ? WTERMSIG(status) : 0};
}

pid_t start(ChildProcess::Words& command, int output)
{
    std::vector<char*> arguments;
    for (std::string& word : command)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t process = -1;
    if (posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ) != 0)
        process = -1;
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

bool isWellDone(const std::function<bool()>& act)
{
    try {
        return act();
    } catch (const std::exception&) {
        return false;
    }
}

} // namespace

ChildProcess::ChildProcess(Words command)
{
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0)
        return;
    m_pid = start(command, ends[1]);
    close(ends[1]);
    m_output = ends[0];
}

ChildProcess::~ChildProcess()
{
    signal(SIGKILL);
    waitForEnd();
    if (m_output >= 0)
        close(m_output);
}

bool ChildProcess::reap(int options)
{
    int status = 0;
    if (m_pid > 0 && waitpid(m_pid, &status, options) == m_pid) {
        m_end = endOf(status);
        m_pid = -1;
    }
    return m_pid <= 0;
}

bool ChildProcess::isRunning()
{
    return !reap(WNOHANG);
}

void ChildProcess::signal(int number) const
{
    if (m_pid > 0)
        kill(m_pid, number);
}

bool ChildProcess::read(char& letter, Clock::time_point last) const
{
    pollfd output{m_output, POLLIN, 0};
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(last - Clock::now()).count();
    return poll(&output, 1, static_cast<int>(std::max<decltype(left)>(left, 0))) > 0 &&
           ::read(m_output, &letter, 1) == 1;
}

std::string ChildProcess::readLine()
{
    std::string line;
    char letter = 0;
    for (const auto last = Clock::now() + Patience; read(letter, last) && letter != '\n';)
        line += letter;
    return line;
}

std::string ChildProcess::readAll()
{
    std::string text;
    char letter = 0;
    for (const auto last = Clock::now() + Patience; read(letter, last);)
        text += letter;
    return text;
}

ProcessEnd ChildProcess::waitForEnd(std::chrono::milliseconds patience)
{
    const auto last = Clock::now() + patience;
    // Most are over in no time.
    for (std::chrono::microseconds pause(20); !reap(WNOHANG) && Clock::now() < last;
         pause = std::min<std::chrono::microseconds>(2 * pause, std::chrono::milliseconds(2)))
        std::this_thread::sleep_for(pause);
    if (m_pid > 0) {
        signal(SIGKILL);
        reap(0); // a killed process ends at once
        m_end.isInTime = false;
    }
    return m_end;
}

ChildAct::ChildAct(const char* name, Act act)
    : m_name(name)
{
    allActs()[name] = act;
}

ChildAct::Words ChildAct::command(const Words& words) const
{
    Words all{"/proc/self/exe", DoesAct, m_name};
    all.insert(all.end(), words.begin(), words.end());
    return all;
}

bool ChildAct::isDone(const Words& words) const
{
    return areDone({words});
}

bool ChildAct::areDone(const std::vector<Words>& each) const
{
    std::list<ChildProcess> processes;
    for (const Words& words : each)
        processes.emplace_back(command(words));
    bool areGood = true;
    for (ChildProcess& process : processes)
        areGood = process.waitForEnd().isGood() && areGood;
    return areGood;
}

std::vector<ChildAct::Words> ChildAct::numbered(int count, const Words& words)
{
    std::vector<Words> each(static_cast<std::size_t>(count), words);
    for (int number = 0; number < count; ++number)
        each[static_cast<std::size_t>(number)].push_back(std::to_string(number));
    return each;
}

bool ChildAct::isAsked(int argc, char** argv)
{
    return argc > 2 && std::strcmp(argv[1], DoesAct) == 0;
}

int ChildAct::perform(int argc, char** argv)
{
    const auto act = allActs().find(argv[2]);
    if (act == allActs().end())
        return 2;
    const Words words(argv + 3, argv + argc);
    return isWellDone([&] { return act->second(words); }) ? 0 : 1;
}

// The copy's alarm comes first: all else may wait for a lock that another thread of the test holds.
ProcessCopy::ProcessCopy(std::chrono::seconds patience, const std::function<bool()>& act)
{
    const pid_t copy = fork();
    if (copy == 0) {
        alarm(static_cast<unsigned>(patience.count()));
        _exit(isWellDone(act) ? 0 : 1);
    }
    setPid(copy);
}
