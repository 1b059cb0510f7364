// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewTool.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QSet>

namespace scopix
{

class SceneView;

/// Walking through the scene while it is on: W A S D and the arrow keys go, Page Up and Page Down rise and
/// sink, with Shift faster; dragging with the left button looks around; the wheel changes the pace, which
/// follows from how large the scene is. Escape ends it. GUI thread only.
class WalkTool : public QObject, public ViewTool
{
    Q_OBJECT

public:
    /// The view must outlive it.
    explicit WalkTool(SceneView& view);

    void setOn(bool on);
    bool isOn() const { return m_isOn; }

    bool mousePressed(QMouseEvent& event) override;
    bool mouseMoved(QMouseEvent& event) override;
    bool mouseReleased(QMouseEvent& event) override;
    bool mouseDoubleClicked(QMouseEvent& event) override;
    bool wheelTurned(QWheelEvent& event) override;
    bool keyPressed(QKeyEvent& event) override;
    bool keyReleased(QKeyEvent& event) override;
    bool wantsKey(const QKeyEvent& event) override;
    void focusLost() override;
    void paint(QPainter& painter, const ViewSight& sight) override;

signals:
    void toggled(bool on);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void step(float seconds);
    void stopGoing();

    SceneView& m_view;
    bool m_isOn = false;
    QSet<int> m_held; // keys
    bool m_isFast = false;
    float m_pace = 1;
    QBasicTimer m_ticks; // runs while keys are held
    QElapsedTimer m_sinceTick;
    bool m_isLooking = false;
    QPointF m_last;
};

} // namespace scopix
