// SPDX-License-Identifier: MIT
// What the editor of a list costs, against a bare table and a bare vector that do the same, and how that
// grows with the length of the list.
#include "AccessButtonPrivate.h"
#include "EdMFFloatWidget.h"
#include "EdMFStringWidget.h"
#include "EdMFieldTable.h"
#include "Ratios.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QTableWidget>

#include <cstdio>
#include <string>
#include <vector>

namespace
{

constexpr int Smallest = 1'000;
constexpr int Largest = 1'000'000;
constexpr int LongText = 10'000'000;
const QSize WindowSize(420, 320);

template <class Editor, class Field>
struct List {
    explicit List(int count)
    {
        field.setNum(count);
        host.edit(editor, &field);
        editor.getWidget()->resize(WindowSize);
        TestHost::pump();
    }
    ~List() { host.release(editor); }
    EdMFieldTable& table() { return *editor.table(); }

    TestHost host;
    Editor editor{nullptr};
    Field field;
};
using Floats = List<EdMFFloatWidget, SoMFFloat>;
using Texts = List<EdMFStringWidget, SoMFString>;

// The toolkit's table with nothing behind it but the values.
struct BareTable : QTableWidget {
    explicit BareTable(int count)
        : QTableWidget(count, 1)
        , values(std::size_t(count))
    {
        resize(WindowSize);
        show();
        TestHost::pump();
    }
    std::vector<float> values;
};

void open(benchmark::State& state)
{
    Floats list(0);
    SoMFFloat field;
    field.setNum(int(state.range(0)));
    for (auto _ : state) {
        list.host.edit(list.editor, &field);
        TestHost::pump();
        state.PauseTiming();
        list.host.edit(list.editor, &list.field);
        TestHost::pump();
        state.ResumeTiming();
    }
}

void bareOpen(benchmark::State& state)
{
    BareTable table(0);
    for (auto _ : state) {
        table.setRowCount(int(state.range(0)));
        TestHost::pump();
        state.PauseTiming();
        table.setRowCount(0);
        TestHost::pump();
        state.ResumeTiming();
    }
}

void refresh(benchmark::State& state)
{
    Floats list(int(state.range(0)));
    float value = 0;
    for (auto _ : state) {
        list.field.set1Value(2, value += 1);
        TestHost::pump();
    }
}

void repaint(benchmark::State& state)
{
    Floats list(int(state.range(0)));
    for (auto _ : state)
        list.table().viewport()->repaint();
}

void bareRepaint(benchmark::State& state)
{
    BareTable table(int(state.range(0)));
    for (int row = 0; row < 20; ++row)
        table.setItem(row, 0, new QTableWidgetItem("0"));
    for (auto _ : state)
        table.viewport()->repaint();
}

// Adds a row in the middle, and deletes it again; `Timed` says which of the two is measured.
enum class Timed { Add, Delete };

template <Timed Which, class Add, class Delete>
void addAndDelete(benchmark::State& state, Add add, Delete remove)
{
    for (auto _ : state) {
        if (Which == Timed::Delete)
            state.PauseTiming();
        add();
        TestHost::pump();
        Which == Timed::Delete ? state.ResumeTiming() : state.PauseTiming();
        remove();
        TestHost::pump();
        if (Which == Timed::Add)
            state.ResumeTiming();
    }
}

template <Timed Which>
void row(benchmark::State& state)
{
    Floats list(int(state.range(0)));
    const int middle = int(state.range(0)) / 2;
    list.table().setCurrentCell(middle, 0);
    addAndDelete<Which>(
        state, [&] { list.table().addRow(); }, [&] { list.table().deleteRow(); });
}

template <Timed Which>
void bareRow(benchmark::State& state)
{
    BareTable table(int(state.range(0)));
    const int middle = int(state.range(0)) / 2;
    table.setCurrentCell(middle, 0);
    const auto add = [&] {
        table.insertRow(middle);
        table.values.insert(table.values.begin() + middle, 0.F);
    };
    const auto remove = [&] {
        table.removeRow(middle);
        table.values.erase(table.values.begin() + middle);
    };
    addAndDelete<Which>(state, add, remove);
}

void moveRow(benchmark::State& state)
{
    Floats list(int(state.range(0)));
    list.editor.accessBox()->setValue(int(state.range(0)) / 2);
    bool down = false;
    for (auto _ : state) {
        down = !down;
        down ? list.table().swapDownRow() : list.table().swapUpRow();
        TestHost::pump();
    }
}

void elidedText(benchmark::State& state)
{
    Texts list(1);
    list.field.set1Value(0, SbString(std::string(std::size_t(state.range(0)), 'x').c_str()));
    TestHost::pump();
    for (auto _ : state)
        list.table().viewport()->repaint();
}

std::string at(const char* name, int size)
{
    return name + ('/' + std::to_string(size));
}

std::vector<bench::Ratio> ratios()
{
    std::vector<bench::Ratio> all;
    const auto against = [&](const char* what, const char* ours, const char* bare, const char* aim) {
        all.push_back({what, at(ours, Largest), at(bare, Largest), aim});
    };
    const auto growth = [&](const char* what, const char* ours, const char* aim) {
        all.push_back({what, at(ours, Largest), at(ours, Smallest), aim});
    };
    against("open 1,000,000 elements / setRowCount", "open", "bareOpen", "");
    against("add a row in the middle / insertRow and vector insert", "addRow", "bareAddRow",
            "aim: at most 1.5");
    against("delete a row in the middle / removeRow and vector erase", "deleteRow", "bareDeleteRow",
            "aim: at most 1.5");
    against("move a row in the middle / insertRow and vector insert", "moveRow", "bareAddRow",
            "aim: at most 1.5");
    against("repaint the visible rows / those of a bare table", "repaint", "bareRepaint", "");
    growth("refresh after a change, 1,000,000 / 1,000 elements", "refresh", "aim: 1");
    growth("repaint the visible rows, 1,000,000 / 1,000 elements", "repaint", "aim: 1");
    growth("move a row, 1,000,000 / 1,000 elements", "moveRow", "aim: 1");
    growth("add a row, 1,000,000 / 1,000 elements", "addRow", "");
    growth("add a row to the bare table, 1,000,000 / 1,000", "bareAddRow", "");
    growth("open, 1,000,000 / 1,000 elements", "open", "");
    all.push_back({"paint a text of 10 MB / one just too long for its cell", at("elidedText", LongText),
                   at("elidedText", Smallest), "aim: 1"});
    return all;
}

void add(const char* name, void (*measure)(benchmark::State&))
{
    benchmark::RegisterBenchmark(name, measure)
        ->RangeMultiplier(1000)
        ->Range(Smallest, Largest)
        ->MinTime(0.05);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    (void)std::freopen("/dev/null", "w", stderr); // where the table traces its moves
    add("open", open);
    add("bareOpen", bareOpen);
    add("refresh", refresh);
    add("repaint", repaint);
    add("bareRepaint", bareRepaint);
    add("addRow", row<Timed::Add>);
    add("bareAddRow", bareRow<Timed::Add>);
    add("deleteRow", row<Timed::Delete>);
    add("bareDeleteRow", bareRow<Timed::Delete>);
    add("moveRow", moveRow);
    benchmark::RegisterBenchmark("elidedText", elidedText)->Arg(Smallest)->Arg(LongText)->MinTime(0.05);
    return bench::run(argc, argv, ratios());
}
