// SPDX-License-Identifier: MIT
// What a list costs as a table, and how that grows with its length: what is visible or what changed should
// count, and not the list. Inserting and deleting in the middle move what lies behind, once.
#include "Ratios.h"
#include "support/TestHost.h"
#include "table/ListTable.h"
#include "table/TableFieldEditor.h"

#include <xsg/fields/SoMFFloat.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QScrollBar>

#include <cstring>

namespace
{

using namespace inspector;

constexpr int Smallest = 1'000;
// SCOPIX_BENCH_VALUES measures another length: 100,000,000 take 1 GB of memory.
const int Largest = qEnvironmentVariableIsSet("SCOPIX_BENCH_VALUES")
                        ? qEnvironmentVariableIntValue("SCOPIX_BENCH_VALUES")
                        : 10'000'000;

struct Table {
    explicit Table(int count)
    {
        field.setNum(count);
        host.edit(editor, &field);
        editor.getWidget()->resize(420, 420);
        TestHost::pump();
        editor.table()->view().setFocus();
    }
    ~Table() { host.release(editor); }
    ListTableView& view() { return editor.table()->view(); }
    void trigger(const char* text)
    {
        for (QAction* action : editor.table()->menu().actions()) {
            if (action->text().remove('&') == QLatin1String(text))
                action->trigger();
        }
    }

    TestHost host;
    SoMFFloat field;
    TableFieldEditor editor{SoMFFloat::getClassTypeId()};
};

void open(benchmark::State& state)
{
    Table table(0);
    SoMFFloat field;
    field.setNum(int(state.range(0)));
    for (auto _ : state) {
        table.host.edit(table.editor, &field);
        TestHost::pump();
        table.view().viewport()->repaint();
        state.PauseTiming();
        table.host.edit(table.editor, &table.field);
        TestHost::pump();
        state.ResumeTiming();
    }
}

void refresh(benchmark::State& state)
{
    Table table(int(state.range(0)));
    float value = 0;
    for (auto _ : state) {
        table.field.set1Value(2, value += 1);
        TestHost::pump();
        table.view().viewport()->repaint();
    }
}

void scroll(benchmark::State& state)
{
    Table table(int(state.range(0)));
    QScrollBar& bar = *table.view().verticalScrollBar();
    int step = 0;
    for (auto _ : state) {
        bar.setValue(int(qint64(bar.maximum()) * (step++ % 100) / 100));
        table.view().viewport()->repaint();
    }
}

// Typed into a cell in the middle, with all that shows it, and taken back.
void editAndUndo(benchmark::State& state)
{
    Table table(int(state.range(0)));
    const TableCell middle{int(state.range(0)) / 2, 0};
    int value = 0;
    for (auto _ : state) {
        table.view().goTo(middle);
        table.view().openCell(QString::number(++value));
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(table.view().cellEditor(), &enter);
        table.host.undo();
        state.PauseTiming();
        TestHost::pump();
        table.host.clearUndo();
        state.ResumeTiming();
    }
}

void insertAndUndo(benchmark::State& state)
{
    Table table(int(state.range(0)));
    table.trigger("Insert Row Before"); // the list has room for one more from now on
    table.host.undo();
    for (auto _ : state) {
        table.view().goTo({int(state.range(0)) / 2, 0});
        table.trigger("Insert Row Before");
        table.host.undo();
        state.PauseTiming();
        TestHost::pump();
        table.host.clearUndo();
        state.ResumeTiming();
    }
}

void deleteAndUndo(benchmark::State& state)
{
    Table table(int(state.range(0)));
    for (auto _ : state) {
        table.view().goTo({int(state.range(0)) / 2, 0});
        table.trigger("Delete Rows");
        table.host.undo();
        state.PauseTiming();
        TestHost::pump();
        table.host.clearUndo();
        state.ResumeTiming();
    }
}

// What moving half of the values there and back costs.
void twoMoves(benchmark::State& state)
{
    std::vector<float> values(std::size_t(state.range(0)) + 1);
    const std::size_t half = values.size() / 2;
    for (auto _ : state) {
        std::memmove(values.data() + half + 1, values.data() + half,
                     (values.size() - half - 1) * sizeof(float));
        std::memmove(values.data() + half, values.data() + half + 1,
                     (values.size() - half - 1) * sizeof(float));
        benchmark::DoNotOptimize(values.data());
    }
}

std::string at(const char* name, int size)
{
    return name + ('/' + std::to_string(size));
}

std::vector<bench::Ratio> ratios()
{
    std::vector<bench::Ratio> all;
    const auto growth = [&](const char* what, const char* name, const char* aim) {
        all.push_back({what, at(name, Largest), at(name, Smallest), aim});
    };
    growth("open, longest / shortest list", "open", "aim: at most 1.5");
    growth("refresh after a change, longest / shortest list", "refresh", "aim: 1");
    growth("scroll, longest / shortest list", "scroll", "aim: 1");
    growth("an edit and its undo, longest / shortest list", "editAndUndo", "aim: 1, and below 1 ms");
    growth("insert and undo, longest / shortest list", "insertAndUndo", "");
    growth("delete and undo, longest / shortest list", "deleteAndUndo", "");
    all.push_back({"insert and undo / two memmoves of half of the values", at("insertAndUndo", Largest),
                   at("twoMoves", Largest), "aim: near 1"});
    all.push_back({"delete and undo / two memmoves of half of the values", at("deleteAndUndo", Largest),
                   at("twoMoves", Largest), "aim: near 1"});
    return all;
}

void add(const char* name, void (*measure)(benchmark::State&))
{
    benchmark::RegisterBenchmark(name, measure)
        ->RangeMultiplier(100)
        ->Range(Smallest, Largest)
        ->MinTime(0.05);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    add("open", open);
    add("refresh", refresh);
    add("scroll", scroll);
    add("editAndUndo", editAndUndo);
    add("insertAndUndo", insertAndUndo);
    add("deleteAndUndo", deleteAndUndo);
    add("twoMoves", twoMoves);
    return bench::run(argc, argv, ratios());
}
