// SPDX-License-Identifier: MIT
// What it costs to open a group of many children in the scene tree, beside Qt's own model with as many rows,
// and how the cost grows with their number; and what it costs to follow a child that is added and removed
// beside groups that are open. Run it with QT_QPA_PLATFORM=offscreen where there is no display.
#include "Ratios.h"

#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"

#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QApplication>
#include <QStandardItemModel>
#include <QTreeView>

using namespace scopix;

namespace
{

SoRef<SoSeparator> flatScene(int children)
{
    SoRef<SoSeparator> root(new SoSeparator);
    for (int i = 0; i < children; ++i)
        root->addChild(new SoCube);
    return root;
}

void show(QTreeView& view)
{
    view.resize(400, 600);
    view.show();
    QCoreApplication::processEvents();
}

void sceneTree(benchmark::State& state)
{
    const SoRef<SoSeparator> root = flatScene(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        SceneTreeView view;
        view.setScene(root.get());
        show(view);
    }
}

void plainTree(benchmark::State& state)
{
    for (auto _ : state) {
        QStandardItemModel model;
        auto* root = new QStandardItem(QStringLiteral("Separator"));
        for (int i = 0; i < state.range(0); ++i)
            root->appendRow(
                {new QStandardItem(QStringLiteral("Cube")), new QStandardItem(QStringLiteral("Cube"))});
        model.appendRow(root);
        QTreeView view;
        view.setUniformRowHeights(true);
        view.setModel(&model);
        view.expand(model.index(0, 0));
        show(view);
    }
}

// A child of one group is added and removed; the other groups, of 100 children each, are open too.
void followOne(benchmark::State& state)
{
    SoRef<SoSeparator> root(new SoSeparator);
    for (int i = 0; i < state.range(0); ++i)
        root->addChild(flatScene(100).get());
    SceneTreeModel model;
    model.setRoot(root.get());
    const QModelIndex top = model.index(0, 0);
    for (int i = 0; i < model.rowCount(top); ++i)
        model.rowCount(model.index(i, 0, top));
    auto* changing = static_cast<SoSeparator*>(root->getChild(0));
    const SoRef<SoCube> cube(new SoCube);
    for (auto _ : state) {
        changing->addChild(cube.get());
        SoSensorQueue::getInstance().process();
        changing->removeChild(changing->getNumChildren() - 1);
        SoSensorQueue::getInstance().process();
    }
}

BENCHMARK(sceneTree)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(plainTree)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(followOne)->Arg(1)->Arg(1000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    return bench::run(
        argc, argv,
        {{"scene tree, 100,000 children of one group, over Qt's items", "sceneTree/100000",
          "plainTree/100000", "at most 1"},
         {"scene tree, 100,000 children over 10,000 (growth)", "sceneTree/100000", "sceneTree/10000",
          "about 10: linear"},
         {"a child that is added and removed beside 1,000 open groups of 100, over one such group",
          "followOne/1000", "followOne/1", "far below 1000"}});
}
