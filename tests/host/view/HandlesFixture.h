// SPDX-License-Identifier: MIT
#pragma once

#include "ViewPictures.h"

#include "handles/HandleTool.h"
#include "panels/SceneTreeView.h"
#include "services/HostServices.h"
#include "support/UserNotifier.h"
#include "window/MainWindow.h"

#include <support/Waiting.h>

#include <xsg/files/SoSceneFile.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/shapes/SoCube.h>
#include <xsg/nodes/transforms/SoTransform.h>

/// A window with a scene of parts, and what a person does to the handles in its view.
class Handles : public testing::Test
{
protected:
    Handles()
    {
        notifier.setAttended(false);
        QObject::connect(&notifier, &UserNotifier::told, [this](const QString& text) { told << text; });
        services.setSceneSource(&window);
        window.resize(1100, 800);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(waitForActive(&window)); // else shortcuts do not act
    }
    ~Handles() override { services.setSceneSource(nullptr); }
    template <class Node>
    Node* add(SoGroup* to = nullptr)
    {
        auto* node = new Node;
        (to ? to : scene.get())->addChild(node);
        return node;
    }
    // A part of its own: separator, transform, shape.
    SoTransform* addPart(const SbVec3f& at)
    {
        auto* part = add<SoSeparator>();
        auto* transform = add<SoTransform>(part);
        transform->translation.setValue(at);
        add<SoCube>(part);
        return transform;
    }
    void show()
    {
        window.setScene(scene.get(), "Test");
        settle();
    }
    void settle() { picture(); }
    QImage picture() { return pictureOf(view); }
    void select(SoNode* node)
    {
        window.getTree().selectNode(node);
        settle();
    }
    void selectAll(const std::vector<SoNode*>& nodes)
    {
        QList<SoFieldContainer*> all;
        for (SoNode* node : nodes)
            all << node;
        services.selectNodes(all);
        settle();
    }
    void send(QEvent::Type type, const QPointF& at, Qt::MouseButton button, Qt::MouseButtons held,
              Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(type, at, view.mapToGlobal(at.toPoint()), button, held, keys);
        QCoreApplication::sendEvent(&view, &event);
    }
    void press(const QPointF& at, Qt::KeyboardModifiers keys = {})
    {
        send(QEvent::MouseMove, at, Qt::NoButton, {}, keys);
        send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, keys);
    }
    void moveTo(const QPointF& at, Qt::KeyboardModifiers keys = {})
    {
        send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, keys);
    }
    void release(const QPointF& at) { send(QEvent::MouseButtonRelease, at, Qt::LeftButton, {}); }
    void drag(const QPointF& from, const QPointF& to, Qt::KeyboardModifiers keys = {})
    {
        press(from);
        moveTo((from + to) / 2, keys);
        moveTo(to, keys);
        release(to);
        settle();
    }
    QPointF placeOf(HandlePart part)
    {
        const auto place = handles.getShape().placeOf(part);
        EXPECT_TRUE(place);
        return place.value_or(QPointF());
    }
    QPointF onScreen(const SbVec3f& world) { return view.getSight().toScreen(world).value_or(QPointF()); }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&view, static_cast<Qt::Key>(key), modifiers);
    }
    void type(const char* text) { QTest::keyClicks(&view, QString::fromLatin1(text)); }
    std::string text() { return SoSceneFile::writeText(window.getScene()); }
    int steps() { return services.undoStack().index(); }
    void undo()
    {
        services.undoStack().undo();
        settle();
    }

    UserNotifier notifier;
    HostServices services;
    MainWindow window{services, notifier};
    SceneView& view = window.getView();
    HandleTool& handles = window.getHandles();
    SoRef<SoSeparator> scene{new SoSeparator};
    QStringList told;
};
