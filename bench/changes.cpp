// SPDX-License-Identifier: MIT
// What the dock of changes costs with 10,000 changes in a scene of 1,000,000 nodes: until it shows them, with
// each further edit, and in memory. Run it with QT_QPA_PLATFORM=offscreen where there is no display.
#include "changes/ChangesPanel.h"
#include "changes/SceneEdits.h"
#include "services/HostServices.h"

#include <scopix/SpxCommand.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>

#include <QApplication>
#include <QTreeView>

#include <benchmark/benchmark.h>

#include <memory>

using namespace scopix;

namespace
{

constexpr int Groups = 1000;
constexpr int Cubes = 999; // in each

class SetWidth : public SpxCommand
{
public:
    SetWidth(SoCube& cube, float width)
        : m_cube(cube)
        , m_width(width)
    {
    }
    void execute() override { m_cube.width.setValue(m_width); }
    void undo() override {}
    void redo() override {}

private:
    SoCube& m_cube;
    float m_width;
};

struct Scene {
    explicit Scene(int changes)
    {
        for (int i = 0; i < Groups; ++i) {
            auto* group = new SoSeparator;
            root->addChild(group);
            for (int j = 0; j < Cubes; ++j)
                group->addChild(new SoCube);
        }
        edits.begin(root.get(), "as it was");
        for (int i = 0; i < changes; ++i)
            edit(i, 3);
        panel.setSource(&edits);
        panel.resize(400, 700);
    }
    SoCube& cube(int number) const
    {
        return *static_cast<SoCube*>(root->getChild(number % Groups)->asGroup()->getChild(number / Groups));
    }
    void edit(int number, float width) { services.executeCommand(new SetWidth(cube(number), width), "edit"); }

    SoRef<SoSeparator> root{new SoSeparator};
    HostServices services;
    SceneEdits edits{services.history()};
    ChangesPanel panel{services};
};

std::unique_ptr<Scene> made;

// Made once for each number of changes: it takes longer to make than to look at.
Scene& scene(const benchmark::State& state)
{
    static std::int64_t changes = -1;
    if (changes != state.range(0)) {
        changes = state.range(0);
        made.reset();
        made = std::make_unique<Scene>(static_cast<int>(changes));
    }
    return *made;
}

void opens(benchmark::State& state)
{
    Scene& all = scene(state);
    for (auto step : state) {
        state.PauseTiming();
        all.panel.hide();
        all.panel.setSource(nullptr);
        state.ResumeTiming();
        all.panel.setSource(&all.edits);
        all.panel.show();
        all.panel.getView().viewport()->repaint();
        QCoreApplication::processEvents();
    }
    state.counters["rows"] = all.panel.getModel().rowCount();
    state.counters["bytes"] = static_cast<double>(all.edits.bytes());
}

void oneMoreEdit(benchmark::State& state)
{
    Scene& all = scene(state);
    all.panel.show();
    float width = 4;
    for (auto step : state) {
        all.edit(0, width += 1);
        all.panel.follow();
        all.panel.getView().viewport()->repaint();
    }
}

void sortsByScene(benchmark::State& state)
{
    Scene& all = scene(state);
    all.panel.show();
    for (auto step : state) {
        all.panel.getView().sortByColumn(ChangesModel::PathColumn, Qt::AscendingOrder);
        state.PauseTiming();
        all.panel.getView().sortByColumn(ChangesModel::TimeColumn, Qt::DescendingOrder);
        state.ResumeTiming();
    }
}

BENCHMARK(opens)->Arg(10)->Arg(10000)->Unit(benchmark::kMillisecond);
BENCHMARK(oneMoreEdit)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(50);
BENCHMARK(sortsByScene)->Arg(10000)->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    made.reset(); // while there is an application
    return 0;
}
