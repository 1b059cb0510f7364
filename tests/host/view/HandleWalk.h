// SPDX-License-Identifier: MIT
// Random acts with the handles of what is selected, for walks.
#pragma once

#include "handles/HandleTool.h"
#include "viewport/SceneView.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QTest>

/// Takes hold of any handle and drags it, snaps, types a number or gives it back: at most one step.
/// `below(n)` gives a random number from 0 to n - 1.
template <class Below>
void useSomeHandle(scopix::SceneView& view, scopix::HandleTool& handles, Below below)
{
    using namespace scopix;
    const auto send = [&view](QEvent::Type type, const QPointF& at, Qt::MouseButton button,
                              Qt::MouseButtons held, Qt::KeyboardModifiers keys = {}) {
        QMouseEvent event(type, at, view.mapToGlobal(at.toPoint()), button, held, keys);
        QCoreApplication::sendEvent(&view, &event);
    };
    handles.setMode(HandleMode(1 + below(3)));
    handles.setOfWorld(below(2) == 0);
    const auto at = handles.getShape().placeOf(HandlePart(1 + below(8)));
    if (at && below(4) != 0) {
        const QPointF to = *at + QPointF(below(120) - 60, below(120) - 60);
        send(QEvent::MouseMove, *at, Qt::NoButton, {});
        send(QEvent::MouseButtonPress, *at, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton,
             below(2) == 0 ? Qt::ControlModifier : Qt::NoModifier);
        if (below(5) == 0)
            QTest::keyClick(&view, Qt::Key_Escape);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton, {});
    } else if (handles.getTarget()) {
        QTest::keyClick(&view, static_cast<Qt::Key>(Qt::Key_X + below(3)));
        QTest::keyClicks(&view, below(2) == 0 ? "1.25" : "-3");
        QTest::keyClick(&view, below(4) == 0 ? Qt::Key_Escape : Qt::Key_Return);
    }
}
