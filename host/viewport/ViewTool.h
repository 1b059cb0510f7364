// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbBox.h>

#include <QCursor>

#include <optional>

class QKeyEvent;
class QMouseEvent;
class QPainter;
class QWheelEvent;
class SoOverlay;

namespace scopix
{

class ViewSight;

/// Something that acts in the 3D view and draws over it, such as handles or a measure. The view offers each
/// event to its tools, in the order in which they were added, before it navigates itself: a tool that returns
/// true has taken the event, and nobody else gets it. The tool that took a press gets all that the mouse
/// does until no button is held any more. Events have places in the view's coordinates. GUI thread only.
class ViewTool
{
public:
    ViewTool() = default;
    virtual ~ViewTool() = default;
    ViewTool(const ViewTool&) = delete;
    ViewTool& operator=(const ViewTool&) = delete;

    virtual bool mousePressed(QMouseEvent& /*event*/) { return false; }
    /// Also while no button is held.
    virtual bool mouseMoved(QMouseEvent& /*event*/) { return false; }
    virtual bool mouseReleased(QMouseEvent& /*event*/) { return false; }
    virtual bool mouseDoubleClicked(QMouseEvent& /*event*/) { return false; }
    virtual bool wheelTurned(QWheelEvent& /*event*/) { return false; }
    /// The pointer has left the view, or the place under it belongs to an earlier tool.
    virtual void mouseLeft() {}

    virtual bool keyPressed(QKeyEvent& /*event*/) { return false; }
    virtual bool keyReleased(QKeyEvent& /*event*/) { return false; }
    /// The key is to come to keyPressed() although it is a shortcut of the window, too.
    virtual bool wantsKey(const QKeyEvent& /*event*/) { return false; }
    /// The view has lost the focus: nothing that is held will be released.
    virtual void focusLost() {}

    /// Something in the scene has changed, or another scene is shown.
    virtual void sceneChanged() {}
    /// Before a new picture: adds what it draws beyond the scene, so that it lies in the depth that is seen.
    virtual void extend(SbBox3f& /*seen*/) {}
    /// Adds to what is drawn over the scene in a new picture.
    virtual void draw(SoOverlay& /*overlay*/, const ViewSight& /*sight*/) {}
    /// Paints over the picture, in the view's coordinates.
    virtual void paint(QPainter& /*painter*/, const ViewSight& /*sight*/) {}
    /// Of the mouse where it is now; nothing: another tool's, or the usual one.
    virtual std::optional<QCursor> getCursor() const { return std::nullopt; }
};

} // namespace scopix
