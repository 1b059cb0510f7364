// SPDX-License-Identifier: MIT
// What the console costs: lines per second that the GUI thread writes to std::cout against a bare
// QPlainTextEdit::appendPlainText fed the same lines, both holding the same number of them; how that grows
// with their number; and the longest time that the event loop is held up while four threads write and two
// report scene-graph errors, and by one line of ten megabytes.
#include "Ratios.h"
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
#include <functional>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

namespace
{

constexpr int MaxLines = 100'000;
constexpr int Many = 1'000'000;

std::string lineNumbered(int number)
{
    return "frame " + std::to_string(number) +
           ": 16.6 ms, 1204 nodes drawn, 0 errors, camera (1.5, 2.25, -3)";
}

void appendPlainText(benchmark::State& state)
{
    const int lines = int(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        {
            QPlainTextEdit edit;
            edit.setReadOnly(true);
            edit.setMaximumBlockCount(MaxLines);
            edit.resize(640, 220);
            edit.show();
            QCoreApplication::processEvents();
            state.ResumeTiming();
            for (int i = 0; i < lines; ++i)
                edit.appendPlainText(QString::fromStdString(lineNumbered(i)));
            QCoreApplication::processEvents();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * lines);
}

/// A console in a window.
class ShownConsole
{
public:
    ShownConsole()
    {
        m_host.start(m_console);
        m_host.window().show();
        QCoreApplication::processEvents();
    }
    ~ShownConsole() { m_host.stop(m_console); }
    QTextEdit& output() { return *m_host.window().findChild<QTextEdit*>("m_consoleOutput"); }

private:
    TestHost m_host;
    SpxConsole m_console;
};

void console(benchmark::State& state)
{
    const int lines = int(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        {
            ShownConsole shown;
            state.ResumeTiming();
            for (int i = 0; i < lines; ++i)
                std::cout << lineNumbered(i);
            QCoreApplication::processEvents();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * lines);
}

using Threads = std::vector<std::thread>;

Threads flood(int lines)
{
    Threads threads;
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

Threads longLine()
{
    Threads threads;
    threads.emplace_back([] { std::cout << std::string(10 * 1024 * 1024, 'x'); });
    return threads;
}

/// Runs the threads, and the event loop until all that they wrote is shown. Returns the longest time between
/// two turns of the loop, in seconds.
double longestTurn(ShownConsole& shown, const std::function<Threads()>& startThreads)
{
    qint64 longest = 0;
    QElapsedTimer turn;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] {
        longest = std::max(longest, turn.nsecsElapsed());
        turn.start();
    });
    std::atomic<bool> over{false};
    QTimer end;
    int quiet = 0;
    QObject::connect(&shown.output(), &QTextEdit::textChanged, &end, [&] { quiet = 0; });
    QObject::connect(&end, &QTimer::timeout, [&] {
        if (over && ++quiet > 3)
            QCoreApplication::quit();
    });
    Threads threads = startThreads();
    std::thread joiner([&] {
        for (std::thread& thread : threads)
            thread.join();
        over = true;
    });
    turn.start();
    beat.start(0);
    end.start(50);
    QCoreApplication::exec();
    joiner.join();
    return double(longest) * 1e-9;
}

/// The time that is measured is the longest for which the event loop was held up.
void eventLoopHeldUp(benchmark::State& state, const std::function<Threads()>& startThreads)
{
    for (auto _ : state) {
        ShownConsole shown;
        state.SetIterationTime(longestTurn(shown, startThreads));
    }
}

benchmark::internal::Benchmark* once(benchmark::internal::Benchmark* measure)
{
    return measure->Iterations(1)->Repetitions(1)->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    application.setQuitOnLastWindowClosed(false);
    for (auto [name, measure] :
         {std::pair{"appendPlainText", appendPlainText}, std::pair{"console", console}}) {
        benchmark::RegisterBenchmark(name, measure)
            ->Unit(benchmark::kMillisecond)
            ->Arg(10'000)
            ->Iterations(1)
            ->Repetitions(3)
            ->UseRealTime();
        // These take long enough to be measured once.
        once(benchmark::RegisterBenchmark(name, measure)->Arg(100'000)->Arg(Many))->UseRealTime();
    }
    const auto flooded = [](benchmark::State& state) {
        eventLoopHeldUp(state, [] { return flood(Many / 6); });
    };
    once(benchmark::RegisterBenchmark("heldUpBySixThreads", flooded))->UseManualTime();
    const auto held = [](benchmark::State& state) { eventLoopHeldUp(state, longLine); };
    once(benchmark::RegisterBenchmark("heldUpByALineOfTenMegabytes", held))->UseManualTime();
    return bench::run(
        argc, argv,
        {{"10,000 lines / appendPlainText", "console/10000", "appendPlainText/10000", "aim: at most 2"},
         {"100,000 lines / appendPlainText", "console/100000", "appendPlainText/100000", "aim: at most 2"},
         {"1,000,000 lines / appendPlainText", "console/1000000", "appendPlainText/1000000",
          "aim: at most 2"},
         {"1,000,000 lines / 10,000 lines", "console/1000000", "console/10000", "aim: 100"}});
}
