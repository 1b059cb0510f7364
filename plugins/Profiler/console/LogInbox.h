// SPDX-License-Identifier: MIT
#pragma once

#include "console/LogLine.h"

#include <scopix/SpxOutput.h>

#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>

namespace profiler
{

/// Makes lines of what the threads of the process write, each thread's apart, and holds them within bounded
/// memory until they are taken: what is too much is the oldest. Any thread.
class LogInbox : public SpxOutputListener
{
public:
    using Clock = std::chrono::steady_clock;

    /// wake is called, on any thread, when there is something to take or to end again.
    explicit LogInbox(std::function<void()> wake, std::uint64_t mostLines);

    void written(Stream stream, const char* text, std::size_t length) override;
    void reported(const SoError& error) override;

    struct Batch {
        std::deque<LogChunk> chunks;
        std::uint64_t dropped = 0;
    };
    Batch take();

    /// Ends the lines that nobody has gone on with since then. True while there are others.
    bool endLines(Clock::time_point since);

    /// What a thread is called: its number, 1 for that which made this, and its name where it has one.
    std::string nameOfThread(std::uint16_t thread) const;

private:
    struct OpenLine {
        std::string text;
        Clock::time_point touched;
        bool isPiece = false; // the rest of a long line, of which nothing may come
    };
    struct Thread {
        std::uint16_t number;
        OpenLine open[3];
    };
    Thread& thisThread();
    Thread& findThread(std::thread::id id);
    void forgetIdleThreads();
    void add(std::string_view line, LogKind kind, std::uint16_t thread);
    void addChunk();
    std::string_view addLines(OpenLine& line, std::string_view text, LogKind kind, std::uint16_t thread);
    void endWith(OpenLine& line, std::string_view text, LogKind kind, std::uint16_t thread);
    void end(OpenLine& line, LogKind kind, std::uint16_t thread);
    void extend(OpenLine& line, std::string_view text, LogKind kind, std::uint16_t thread);
    void wake();

    const std::function<void()> m_wake;
    const std::uint64_t m_mostLines;
    mutable std::mutex m_mutex;
    std::map<std::thread::id, Thread> m_threads;
    std::thread::id m_latestId; // the thread that wrote last
    Thread* m_latest = nullptr;
    std::map<std::uint16_t, std::string> m_names;
    std::uint16_t m_lastThread = 0;
    std::int64_t m_now = 0; // of what is being written, milliseconds since 1970
    Batch m_batch;
    std::uint64_t m_lines = 0; // in the batch
    std::size_t m_bytes = 0;
    bool m_isAwake = false;
};

} // namespace profiler
