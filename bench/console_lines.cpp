// SPDX-License-Identifier: MIT
// What the console costs: lines per second that the GUI thread writes to std::cout against a bare
// QPlainTextEdit::appendPlainText fed the same lines, both holding the same number of them; how that grows
// with their number; and the longest time that the event loop is held up while four threads write and two
// report scene-graph errors, and by one line of ten megabytes.
//
//     console_lines [lines]
#include "SpxConsole.h"

#include "support/TestHost.h"

#include <xsg/errors/SoDebugError.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace
{

constexpr int MaxLines = 100000;

std::string lineNumbered(int number)
{
    return "frame " + std::to_string(number) +
           ": 16.6 ms, 1204 nodes drawn, 0 errors, camera (1.5, 2.25, -3)";
}

double secondsOf(const std::function<void()>& work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return double(clock.nsecsElapsed()) * 1e-9;
}

double plainSeconds(int lines)
{
    QPlainTextEdit edit;
    edit.setReadOnly(true);
    edit.setMaximumBlockCount(MaxLines);
    edit.resize(640, 220);
    edit.show();
    QCoreApplication::processEvents();
    return secondsOf([&] {
        for (int i = 0; i < lines; ++i)
            edit.appendPlainText(QString::fromStdString(lineNumbered(i)));
        QCoreApplication::processEvents();
    });
}

double consoleSeconds(int lines)
{
    TestHost host;
    SpxConsole console;
    host.start(console);
    host.window().show();
    QCoreApplication::processEvents();
    const double seconds = secondsOf([&] {
        for (int i = 0; i < lines; ++i)
            std::cout << lineNumbered(i);
        QCoreApplication::processEvents();
    });
    host.stop(console);
    return seconds;
}

void compare(int lines)
{
    // Millions take long enough to be measured once.
    const int rounds = lines < MaxLines ? 3 : 1;
    double plain = 1e9;
    double console = 1e9;
    for (int round = 0; round < rounds; ++round) {
        plain = std::min(plain, plainSeconds(lines));
        console = std::min(console, consoleSeconds(lines));
    }
    std::printf("%9d lines from the GUI thread: console %7.0f lines/s, appendPlainText %7.0f lines/s, cost "
                "ratio %.2f (aim: at most 2)\n",
                lines, lines / console, lines / plain, console / plain);
    std::fflush(stdout);
}

std::vector<std::thread> flood(int lines)
{
    std::vector<std::thread> threads;
    for (int worker = 0; worker < 4; ++worker)
        threads.emplace_back([lines] {
            for (int i = 0; i < lines; ++i)
                (i % 2 ? std::cout : std::cerr) << lineNumbered(i);
        });
    for (int reporter = 0; reporter < 2; ++reporter)
        threads.emplace_back([lines] {
            for (int i = 0; i < lines; ++i)
                SoDebugError::postWarning("console_lines", lineNumbered(i));
        });
    return threads;
}

// Runs the threads and the event loop until all that they wrote is shown, and tells the longest time between
// two turns of the loop, in milliseconds.
double longestTurn(const std::function<std::vector<std::thread>()>& startThreads, double* seconds)
{
    TestHost host;
    SpxConsole console;
    host.start(console);
    host.window().show();
    QCoreApplication::processEvents();

    qint64 longest = 0;
    QElapsedTimer turn;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] {
        longest = std::max(longest, turn.nsecsElapsed());
        turn.start();
    });
    std::atomic<bool> over{false};
    QTimer end;
    auto* output = host.window().findChild<QTextEdit*>("m_consoleOutput");
    int quiet = 0;
    QObject::connect(output, &QTextEdit::textChanged, [&] { quiet = 0; });
    QObject::connect(&end, &QTimer::timeout, [&] {
        if (over && ++quiet > 3)
            QCoreApplication::quit();
    });
    std::vector<std::thread> threads = startThreads();
    std::thread joiner([&] {
        for (std::thread& thread : threads)
            thread.join();
        over = true;
    });
    turn.start();
    beat.start(0);
    end.start(50);
    *seconds = secondsOf([] { QCoreApplication::exec(); });
    joiner.join();
    host.stop(console);
    return double(longest) * 1e-6;
}

void measureLoop(int lines)
{
    double seconds = 0;
    const double flooded = longestTurn([lines] { return flood(lines); }, &seconds);
    std::printf("6 threads x %d lines: %.0f lines/s, longest time that the event loop was held up: %.1f ms\n",
                lines, 6 * lines / seconds, flooded);
    const auto longLine = [] {
        std::vector<std::thread> threads;
        threads.emplace_back([] { std::cout << std::string(10 * 1024 * 1024, 'x'); });
        return threads;
    };
    const double held = longestTurn(longLine, &seconds);
    std::printf("a line of ten megabytes from another thread: event loop held up for %.1f ms\n", held);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    const int lines = argc > 1 ? std::atoi(argv[1]) : 1000000;
    for (int count = lines / 100; count <= lines; count *= 10)
        compare(count);
    measureLoop(lines / 6);
    return 0;
}
