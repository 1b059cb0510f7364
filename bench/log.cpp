// SPDX-License-Identifier: MIT
// What the log costs with a thousand to a million lines: in, filtered, folded and found, each until the last
// line is there; the longest time that the event loop is held meanwhile; and, beside it, how long a plain
// walk over the same bytes takes.
#include "Ratios.h"

#include "console/LogFind.h"
#include "console/LogModel.h"
#include "console/LogView.h"
#include "console/TextFinder.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <ctime>
#include <memory>
#include <string>

using namespace profiler;

namespace
{

std::string lineNumbered(int number)
{
    return "frame " + std::to_string(number) + ": 16.6 ms, 1204 nodes drawn, " +
           (number % 10 == 0 ? "warning: shader" : "no errors") + ", camera (1.5, 2.25, -3)\n";
}

// Milliseconds that this thread has had a processor: a busy machine takes none of them.
double processorTime()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) * 1e-6;
}

/// A log in a window.
class ShownLog
{
public:
    ShownLog()
    {
        view.resize(900, 300);
        view.show();
        QCoreApplication::processEvents();
    }
    void write(int lines)
    {
        for (int i = 0; i < lines; ++i) {
            const std::string line = lineNumbered(i);
            model.getInbox().written(SpxOutputListener::Stream::Output, line.data(), line.size());
        }
    }
    /// Until all is there. The longest turn of the event loop is noted.
    template <class IsThere>
    void wait(IsThere isThere)
    {
        do {
            QElapsedTimer turn;
            turn.start();
            const double before = processorTime();
            QCoreApplication::processEvents();
            longestTurn = std::max(longestTurn, double(turn.nsecsElapsed()) * 1e-6);
            longestWork = std::max(longestWork, processorTime() - before);
        } while (!isThere());
    }
    void begin()
    {
        longestTurn = longestWork = 0;
        begun = processorTime();
    }
    void tell(benchmark::State& state) const
    {
        state.counters["held_ms"] = longestTurn;
        state.counters["held_cpu_ms"] = longestWork;
        state.counters["cpu_ms"] = processorTime() - begun;
    }
    void settle()
    {
        wait([this] { return model.isUpToDate() && model.getRows().isDone(); });
    }

    LogModel model;
    LogView view{model};
    double longestTurn = 0; // milliseconds
    double longestWork = 0; // of the processor, in one turn
    double begun = 0;
};

std::unique_ptr<ShownLog> filled(int lines)
{
    auto log = std::make_unique<ShownLog>();
    log->write(lines);
    log->settle();
    return log;
}

void in(benchmark::State& state)
{
    for (auto _ : state) {
        ShownLog log;
        QElapsedTimer clock;
        clock.start();
        log.write(int(state.range(0)));
        const auto written = clock.nsecsElapsed();
        log.begin();
        log.settle();
        state.SetIterationTime(double(clock.nsecsElapsed() - written) * 1e-9);
        state.counters["writing_ns_a_line"] = double(written) / double(state.range(0));
        log.tell(state);
    }
}

void apply(benchmark::State& state, const QString& filter, LogFold fold)
{
    const auto log = filled(int(state.range(0)));
    LogRows::Rule rule;
    for (auto _ : state) {
        rule.filter = LogFilter();
        rule.fold = LogFold::None;
        log->model.setRule(rule);
        log->settle();
        log->begin();
        rule.filter = LogFilter(filter);
        rule.fold = fold;
        QElapsedTimer clock;
        clock.start();
        log->model.setRule(rule);
        log->settle();
        state.SetIterationTime(double(clock.nsecsElapsed()) * 1e-9);
        log->tell(state);
        state.counters["rows"] = log->model.rowCount();
    }
}

void filter(benchmark::State& state)
{
    apply(state, "warn -camera", LogFold::Runs);
}

void filterMany(benchmark::State& state)
{
    apply(state, "frame -shader", LogFold::Runs);
}

void foldAll(benchmark::State& state)
{
    apply(state, "", LogFold::All);
}

void find(benchmark::State& state, const QString& text)
{
    const auto log = filled(int(state.range(0)));
    LogFind find(log->model);
    for (auto _ : state) {
        find.setText({});
        log->begin();
        QElapsedTimer clock;
        clock.start();
        find.setText(text);
        log->wait([&] { return find.isDone(); });
        state.SetIterationTime(double(clock.nsecsElapsed()) * 1e-9);
        log->tell(state);
        state.counters["hits"] = find.count();
    }
}

void findNothing(benchmark::State& state)
{
    find(state, "not there");
}

void findAll(benchmark::State& state)
{
    find(state, "CAMERA");
}

std::string allLines(int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += lineNumbered(i);
    return all;
}

void plainWalk(benchmark::State& state)
{
    const std::string all = allLines(int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(std::count(all.begin(), all.end(), '\n'));
}

// What is nowhere, in one text.
void textFinder(benchmark::State& state)
{
    const std::string all = allLines(int(state.range(0)));
    const TextFinder finder("not there");
    for (auto _ : state)
        benchmark::DoNotOptimize(finder.find(all));
}

void standardSearch(benchmark::State& state)
{
    const std::string all = allLines(int(state.range(0)));
    const std::string wanted = "not there";
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c | 0x20) : c; };
    for (auto _ : state)
        benchmark::DoNotOptimize(std::search(all.begin(), all.end(), wanted.begin(), wanted.end(),
                                             [&](char a, char b) { return lower(a) == b; }));
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const std::pair<const char*, void (*)(benchmark::State&)> all[] = {
        {"in", in},           {"filter", filter},           {"filterMany", filterMany},
        {"foldAll", foldAll}, {"findNothing", findNothing}, {"findAll", findAll}};
    for (const auto& [name, measure] : all)
        benchmark::RegisterBenchmark(name, measure)
            ->Arg(1000)
            ->Arg(1000000)
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    const std::pair<const char*, void (*)(benchmark::State&)> walks[] = {
        {"plainWalk", plainWalk}, {"textFinder", textFinder}, {"standardSearch", standardSearch}};
    for (const auto& [name, measure] : walks)
        benchmark::RegisterBenchmark(name, measure)->Arg(1000000)->Unit(benchmark::kMillisecond);
    return bench::run(
        argc, argv,
        {{"in, a million / a thousand lines", "in/1000000", "in/1000", "aim: 1000"},
         {"filter, a million / a thousand lines", "filter/1000000", "filter/1000", "aim: 1000"},
         {"filter / plain walk", "filter/1000000", "plainWalk/1000000", ""},
         {"std::search / TextFinder", "standardSearch/1000000", "textFinder/1000000", ""},
         {"find / plain walk", "findNothing/1000000", "plainWalk/1000000", ""},
         {"find, a million / a thousand lines", "findNothing/1000000", "findNothing/1000", "aim: 1000"}});
}
