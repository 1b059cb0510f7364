// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <atomic>
#include <thread>
#include <vector>

/// A flood of text: four threads write to std::cout and std::cerr, in blocks and by single characters, and
/// two report scene-graph errors, while the GUI thread may write its own share. Every writer numbers its
/// lines, and now and then writes what no console is glad of: NUL, control characters, bytes that are no
/// UTF-8, line ends of all kinds, and once a line of ten megabytes.
class Flood
{
public:
    /// Each of the six threads writes that many numbered lines, fewer once stop() has been called.
    explicit Flood(int lines);
    Flood(const Flood&) = delete;
    Flood& operator=(const Flood&) = delete;
    /// Stops it.
    ~Flood();

    void stop() { m_stop = true; }
    /// No thread writes any more.
    bool isOver() const { return m_running == 0; }

    /// One line of the GUI thread's share, and what comes before it.
    static void writeGuiLine(int number);

    static constexpr std::array<const char*, 7> Writers{"gui",      "out",     "err",    "outchars",
                                                        "errchars", "warning", "reading"};
    static constexpr int LongLine = 10 * 1024 * 1024;
    /// How often each writer writes its n-th kind of odd text along with that many lines.
    static constexpr int OddKinds = 4;
    static int timesOfOdd(int kind, int lines);

private:
    using WriteLine = void (*)(const std::string& text);
    void start(const char* who, WriteLine writeLine, int lines);

    std::atomic<bool> m_stop{false};
    std::atomic<int> m_running{0};
    std::vector<std::thread> m_threads;
};
