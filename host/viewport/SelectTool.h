// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/HoverMark.h"
#include "viewport/ViewTool.h"

#include <QBasicTimer>
#include <QList>
#include <QObject>

#include <functional>

namespace scopix
{

/// Selecting in the 3D view. Hovering shows what a click would select. A click selects the part with a name
/// that is there; a later one on what is selected goes on to the shape, then to its material. With Ctrl a
/// click adds or takes away, with Alt it lists all that is under the pointer; Shift and the left button draw
/// a rubber band, which selects what is seen in it; Esc goes up to the part around, and then to nothing.
///
/// By keys: Ctrl and the arrows move a crosshair (Alt makes the steps fine), Enter clicks there, with Ctrl
/// and Alt as the mouse does, and Shift+Enter begins and ends a rubber band. GUI thread only.
class SelectTool : public QObject, public ViewTool
{
    Q_OBJECT

public:
    /// What is selected at present; the last one is the current one.
    using Selected = std::function<QList<SoPath>()>;
    /// The view must outlive it; whoever makes it adds it to the view. Keeps no node alive.
    SelectTool(SceneView& view, Selected selected);

    /// Something else is selected now.
    void selectionChanged();
    /// Whether hovering shows what a click would select, as at first.
    void setHovering(bool on);
    /// Clicks are somebody else's for the time being; the crosshair goes on.
    void setPaused(bool on);
    /// What the shape at a place belongs to was clicked; an empty path: the ground.
    void click(const SoPath& toShape);
    /// Where a rubber band or a crosshair is; for what acts at the place that the user points at by keys.
    QPoint getCrosshair() const;
    bool hasCrosshair() const { return m_hasCrosshair; }

    bool mousePressed(QMouseEvent& event) override;
    bool mouseMoved(QMouseEvent& event) override;
    bool mouseReleased(QMouseEvent& event) override;
    bool mouseDoubleClicked(QMouseEvent& event) override;
    void mouseLeft() override;
    bool keyPressed(QKeyEvent& event) override;
    void focusLost() override;
    void paint(QPainter& painter, const ViewSight& sight) override;
    std::optional<QCursor> getCursor() const override;

signals:
    /// All that is to be selected from now on.
    void selectRequested(const QList<SoPath>& paths);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    enum class Press { None, Band, Toggle, List };

    void hoverSoon();
    void hover();
    void stopHovering();
    SoPath partAt(const QPoint& place);
    void toggle(const QPoint& place);
    void list(const QPoint& place);
    void finishBand(bool adds);
    void endBand();
    void goUp();
    bool moveCrosshair(const QKeyEvent& event);
    bool clickAtCrosshair(Qt::KeyboardModifiers keys);
    void hideCrosshair();
    QRect getBand() const { return QRect(m_bandFrom, m_bandTo).normalized(); }
    SoPath current() const;

    SceneView& m_view;
    Selected m_selected;
    bool m_wentOn = false; // the last click, within what was selected
    HoverMark m_hover;
    QPoint m_hoverAt;
    bool m_isHovering = true;
    bool m_isPaused = false;
    bool m_hovers = false; // the pointer is in the view
    QBasicTimer m_hoverTimer;
    qint64 m_hoverMs = 0; // that the last look took
    Press m_press = Press::None;
    QPoint m_pressed;
    bool m_hasBand = false;
    QPoint m_bandFrom;
    QPoint m_bandTo;
    bool m_hasCrosshair = false;
    QPoint m_crosshair;
};

} // namespace scopix
