// What the console costs: lines per second that the GUI thread writes to std::cout against a bare
// QPlainTextEdit::appendPlainText fed the same lines, how that grows with the number of lines held, and the
// longest time that the event loop is held up while four threads write and two report scene-graph errors.
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
    // QPlainTextEdit takes its time; its cost per line hardly changes with their number.
    const int plainLines = std::min(lines, 20000);
    double plain = 1e9;
    double console = 1e9;
    for (int round = 0; round < 3; ++round) {
        plain = std::min(plain, plainSeconds(plainLines) / plainLines);
        console = std::min(console, consoleSeconds(lines) / lines);
    }
    std::printf("%9d lines from the GUI thread: console %7.0f lines/s, appendPlainText %7.0f lines/s, cost "
                "ratio %.2f\n",
                lines, 1 / console, 1 / plain, console / plain);
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

// The longest time between two turns of the event loop, until the flood is over and printed.
void measureLoop(int lines)
{
    TestHost host;
    SpxConsole console;
    host.start(console);
    host.window().show();
    QCoreApplication::processEvents();

    qint64 longest = 0;
    QElapsedTimer turn;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] { longest = std::max(longest, turn.restart()); });
    std::atomic<bool> over{false};
    QTimer end;
    auto* output = host.window().findChild<QTextEdit*>("m_consoleOutput");
    int quiet = 0;
    QObject::connect(output, &QTextEdit::textChanged, [&] { quiet = 0; });
    QObject::connect(&end, &QTimer::timeout, [&] {
        if (over && ++quiet > 3)
            QCoreApplication::quit();
    });
    std::vector<std::thread> threads = flood(lines);
    std::thread joiner([&] {
        for (std::thread& thread : threads)
            thread.join();
        over = true;
    });
    turn.start();
    beat.start(0);
    end.start(50);
    const double seconds = secondsOf([] { QCoreApplication::exec(); });
    joiner.join();
    std::printf("6 threads x %d lines: %.0f lines/s, longest time that the event loop was held up: %lld ms\n",
                lines, 6 * lines / seconds, static_cast<long long>(longest));
    host.stop(console);
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
