// SPDX-License-Identifier: MIT
// A window with a scene, acted on in its tree as a person does.
#pragma once

#include "Outline.h"
#include "panels/SceneTreeModel.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "structure/SceneStates.h"
#include "support/UserNotifier.h"
#include "viewport/SceneView.h"
#include "window/BranchFiles.h"
#include "window/MainWindow.h"
#include "window/NodeEditing.h"

#include <support/Waiting.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/sensors/SoSensorQueue.h>

using namespace scopix;

class TreeWindow : public testing::Test
{
protected:
    TreeWindow()
    {
        notifier.setAttended(false);
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        QObject::connect(&window, &HostWindow::openFinished, [this](bool opened) { done << opened; });
        window.show();
        EXPECT_TRUE(waitForActive(&window));
        tree.setFocus();
    }
    ~TreeWindow() override { QGuiApplication::clipboard()->clear(); }

    void show(const char* text)
    {
        std::string error;
        const SoRef<SoNode> scene =
            SoSceneFile::readText(std::string(SoSceneFile::FirstLine) + "\n" + text, "test", error);
        ASSERT_TRUE(scene) << error;
        window.setScene(scene.get(), "Test");
    }
    bool open(const QString& path)
    {
        done.clear();
        window.openFile(path);
        const bool isOpen = waitFor([this] { return !done.isEmpty(); }) && done.value(0);
        // A dialog that showed how far it is may have taken the focus along.
        window.activateWindow();
        tree.setFocus();
        return isOpen && waitFor([this] { return tree.hasFocus(); });
    }
    std::string text() const { return SoSceneFile::writeText(window.getScene()); }
    std::string outline() const { return outlineOf(window.getScene()); }
    // The row of the first node of this name.
    QModelIndex row(const char* name) const
    {
        return tree.getModel().indexOf(static_cast<SoNode*>(SoFieldContainer::getByName(name)));
    }
    QPoint middleOf(const QModelIndex& index) const { return tree.visualRect(index).center(); }
    void click(const char* name, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        tree.scrollTo(row(name));
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, keys, middleOf(row(name)));
    }
    void key(int key, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        QTest::keyClick(&tree, static_cast<Qt::Key>(key), keys);
        settle();
    }
    void settle()
    {
        SoSensorQueue::getInstance().process();
        QCoreApplication::processEvents();
    }
    // Of the selected nodes, the last one's last.
    QStringList selectedNames() const
    {
        QStringList names;
        for (const SoPath& path : services.getSelectedPaths())
            names << QString::fromStdString(outlineOf(path.getTail()));
        return names;
    }

    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    SceneTreeView& tree = window.getTree();
    NodeEditing& editing = window.getEditing();
    SceneStates& states = window.getStates();
    QStringList told;
    QList<bool> done;
};
