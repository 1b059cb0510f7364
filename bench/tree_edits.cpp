// SPDX-License-Identifier: MIT
// What finding, deleting, undoing and pasting cost in a scene of 1,000,000 nodes whose tree is shown: until
// the rows show it. And how long typing is held up at most while a search goes on. Run it with
// QT_QPA_PLATFORM=offscreen where there is no display.
#include "Ratios.h"

#include "panels/SceneFinder.h"
#include "panels/ScenePanel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "structure/BranchText.h"
#include "structure/StructureActs.h"

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoMaterial.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QApplication>
#include <QElapsedTimer>

using namespace scopix;

namespace
{

constexpr int PartsOfAll = 1000000 / 4;

SoSeparator* makePart(int number)
{
    auto* part = new SoSeparator;
    part->setName(("part" + std::to_string(number)).c_str());
    part->addChild(new SoMaterial);
    part->addChild(new SoCube);
    part->addChild(new SoCube);
    return part;
}

/// Shown from the first benchmark on: it takes longer to make than to edit. `groups`: in groups of 1000
/// parts, as models have them; else all parts in the root.
struct Scene {
    explicit Scene(int parts, bool groups)
    {
        SoSeparator* into = root.get();
        for (int i = 0; i < parts; ++i) {
            if (groups && i % 1000 == 0)
                root->addChild(into = new SoSeparator);
            into->addChild(makePart(i));
        }
        panel.resize(400, 700);
        panel.setScene(root.get());
        panel.show();
        QCoreApplication::processEvents();
    }
    SoPath middle() const
    {
        SoPath path;
        path.append(root.get());
        path.append(root->getChild(root->getNumChildren() / 2));
        return path;
    }
    void perform(structure::Act act)
    {
        services.executeCommand(act.command.release(), act.name);
        showRows();
    }
    void showRows()
    {
        panel.getTree().getModel().followNow();
        SoSensorQueue::getInstance().process();
        panel.getTree().viewport()->repaint();
    }

    SoRef<SoSeparator> root{new SoSeparator};
    HostServices services;
    ScenePanel panel;
};

/// By their number of nodes, until the application ends.
std::map<std::int64_t, std::unique_ptr<Scene>>& scenes()
{
    static std::map<std::int64_t, std::unique_ptr<Scene>> all;
    return all;
}

Scene& scene(const benchmark::State& state)
{
    auto& found = scenes()[state.range(0)];
    if (!found)
        found = std::make_unique<Scene>(static_cast<int>(state.range(0)) / 4, state.range(0) != 999999);
    return *found;
}

void deleteAndUndo(benchmark::State& state)
{
    Scene& all = scene(state);
    for (auto _ : state) {
        all.perform(structure::remove({all.middle()}));
        all.services.undoStack().undo();
        all.showRows();
    }
}

void pasteAndUndo(benchmark::State& state)
{
    Scene& all = scene(state);
    const SoRef<SoSeparator> part(makePart(0));
    const std::string text = writeBranches({part.get()});
    for (auto _ : state) {
        all.perform(structure::add(all.middle(), readBranches(text).nodes, "Paste"));
        all.services.undoStack().undo();
        all.showRows();
    }
}

void dragAndUndo(benchmark::State& state)
{
    Scene& all = scene(state);
    SoPath root;
    root.append(all.root.get());
    for (auto _ : state) {
        all.perform(structure::transfer({all.middle()}, root, 0, structure::Transfer::Move));
        all.services.undoStack().undo();
        all.showRows();
    }
}

// Until there is something to show; the one that is found stands near the front, as most do.
void findFirst(benchmark::State& state)
{
    Scene& all = scene(state);
    SceneFinder& finder = all.panel.getFinder();
    for (auto _ : state) {
        finder.setQuery("part1");
        while (finder.getFound().empty())
            QCoreApplication::processEvents();
        state.PauseTiming();
        finder.setQuery({});
        state.ResumeTiming();
    }
}

void findLast(benchmark::State& state)
{
    Scene& all = scene(state);
    SceneFinder& finder = all.panel.getFinder();
    const QString last = QStringLiteral("name:part%1").arg(state.range(0) / 4 - 1);
    for (auto _ : state) {
        finder.setQuery(last);
        while (!finder.isFinished())
            QCoreApplication::processEvents();
        state.PauseTiming();
        finder.setQuery({});
        state.ResumeTiming();
    }
}

// The longest turn of the event loop while a search goes on, which is what a key waits for.
void holdUp(benchmark::State& state)
{
    Scene& all = scene(state);
    SceneFinder& finder = all.panel.getFinder();
    for (auto _ : state) {
        double longest = 0;
        finder.setQuery("cube");
        while (!finder.isFinished()) {
            QElapsedTimer turn;
            turn.start();
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            longest = std::max(longest, static_cast<double>(turn.nsecsElapsed()) / 1e9);
        }
        state.SetIterationTime(longest);
        finder.setQuery({});
    }
}

BENCHMARK(findFirst)->Arg(PartsOfAll * 4)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(findLast)->Arg(PartsOfAll * 4)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(holdUp)->Arg(PartsOfAll * 4)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(deleteAndUndo)->Arg(10000)->Arg(PartsOfAll * 4)->Arg(999999)->Unit(benchmark::kMicrosecond);
BENCHMARK(pasteAndUndo)->Arg(10000)->Arg(PartsOfAll * 4)->Arg(999999)->Unit(benchmark::kMicrosecond);
BENCHMARK(dragAndUndo)->Arg(10000)->Arg(PartsOfAll * 4)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const int status = bench::run(argc, argv,
                                  {{"delete and undo in 1,000,000 nodes over 10,000", "deleteAndUndo/1000000",
                                    "deleteAndUndo/10000", "small"},
                                   {"paste and undo in 1,000,000 nodes over 10,000", "pasteAndUndo/1000000",
                                    "pasteAndUndo/10000", "small"},
                                   {"drag and undo in 1,000,000 nodes over 10,000", "dragAndUndo/1000000",
                                    "dragAndUndo/10000", "small"}});
    scenes().clear();
    return status;
}
