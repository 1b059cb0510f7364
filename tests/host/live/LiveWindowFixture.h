// SPDX-License-Identifier: MIT
// A window attached to a program in this process, and what a person does in it.
#pragma once

#include "TestProgram.h"

#include "live/LiveScene.h"
#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/LiveActs.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/core/SoField.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QtTest>

#include <gtest/gtest.h>

namespace scopix
{

/// The program shows a sky with two planets and a moon.
class LiveWindow : public testing::Test
{
protected:
    LiveWindow()
    {
        notifier.setAttended(false);
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        QObject::connect(&window, &HostWindow::openFinished, [this](bool good) { done << good; });
        window.show();
        TestScene& scene = program.scene;
        scene.put(0, 1, "Sky", "sky");
        scene.put(1, 2, "Planet", "earth");
        scene.put(1, 3, "Planet", "mars");
        scene.put(2, 4, "Moon", "luna");
        scene.property(3, "radius", number(3.5)).greatest = 10;
    }
    void attach()
    {
        done.clear();
        window.openLive({{}, program.socket(), {}});
        ASSERT_TRUE(waitFor([this] { return !done.isEmpty(); }));
        ASSERT_TRUE(done.first()) << told.join("\n").toStdString();
    }
    void settle()
    {
        SoSensorQueue::getInstance().process();
        QCoreApplication::processEvents();
    }
    bool wait(const std::function<bool()>& is)
    {
        return waitFor([&] {
            settle();
            return is();
        });
    }
    LiveNode* nodeAt(const QModelIndex& index) { return dynamic_cast<LiveNode*>(model().nodeAt(index)); }
    SceneTreeModel& model() { return window.getTree().getModel(); }
    QModelIndex row(const char* name)
    {
        return model().indexOf(dynamic_cast<SoNode*>(SoFieldContainer::getByName(name)));
    }
    bool unfold(const char* name)
    {
        window.getTree().expand(row(name));
        return wait([&] { return model().rowCount(row(name)) > 0; });
    }
    LiveNode* select(const char* name)
    {
        const QModelIndex index = row(name);
        if (!index.isValid())
            return nullptr;
        window.getTree().scrollTo(index);
        QTest::mouseClick(window.getTree().viewport(), Qt::LeftButton, {},
                          window.getTree().visualRect(index).center());
        LiveNode* node = nodeAt(index);
        wait([&] { return services.selectedNode() == node && isShown(*node); });
        return node;
    }
    static bool isShown(LiveNode& node)
    {
        return !node.getProperties().empty() &&
               std::all_of(node.getProperties().begin(), node.getProperties().end(), [](const auto& each) {
                   return !each->field || each->known.kind != ValueKind::None || !each->remark.isEmpty();
               });
    }
    template <class Field>
    Field& field(LiveNode& node, const char* name)
    {
        auto* found = dynamic_cast<Field*>(node.getField(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    // As an editor does: while the user acts.
    template <class Act>
    void edit(SoField& edited, Act act)
    {
        services.select(&edited);
        {
            const UserInput::Scope scope(services.history().input(), UserInput::Scope::User);
            act();
        }
        services.history().endStep();
    }
    double radius() { return *live::unpacked<double>(program.scene.nodes[3].values["radius"]); }

    TestProgram program;
    UserNotifier notifier;
    HostServices services;
    QStringList told;
    QList<bool> done;
    MainWindow window{services, notifier};
};

} // namespace scopix
