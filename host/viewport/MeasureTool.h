// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/SnapFinder.h"
#include "viewport/ViewTool.h"

#include <QBasicTimer>
#include <QObject>

#include <functional>

namespace scopix
{

class SelectionMeasure;

/// Measuring in the 3D view, while it is on: the distance between two points that are clicked, the edge under
/// the pointer, and how large what is selected is. Points snap to vertices and edges. Enter clicks at the
/// crosshair, Ctrl+C copies all numbers, exactly, and Esc ends it. GUI thread only.
class MeasureTool : public QObject, public ViewTool
{
    Q_OBJECT

public:
    /// Both must outlive it.
    MeasureTool(SceneView& view, SelectionMeasure& selection);
    ~MeasureTool() override;

    void setOn(bool on);
    bool isOn() const { return m_isOn; }
    /// Where keys point at; nothing while they point at nothing.
    void setCrosshair(std::function<std::optional<QPoint>()> crosshair)
    {
        m_crosshair = std::move(crosshair);
    }
    /// The view was clicked where the mouse was pressed last.
    void click() { take(m_pressed); }
    /// The numbers, each with all its digits, one a line.
    QString getText() const { return makeText(true); }

    bool mousePressed(QMouseEvent& event) override;
    bool mouseMoved(QMouseEvent& event) override;
    bool mouseDoubleClicked(QMouseEvent& event) override;
    void mouseLeft() override;
    bool keyPressed(QKeyEvent& event) override;
    bool wantsKey(const QKeyEvent& event) override;
    void paint(QPainter& painter, const ViewSight& sight) override;
    std::optional<QCursor> getCursor() const override;

signals:
    void changed(bool on);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void take(const QPoint& place);
    void hover();
    void paintPoint(QPainter& painter, const ViewSight& sight, const Snap& snap) const;
    QString makeText(bool isExact) const;

    SceneView& m_view;
    SelectionMeasure& m_selection;
    std::function<std::optional<QPoint>()> m_crosshair;
    bool m_isOn = false;
    QPoint m_pressed;
    QList<Snap> m_points; // up to two
    std::optional<Snap> m_hovered;
    std::optional<QPoint> m_hoverAt;
    QPoint m_lookedAt;
    QBasicTimer m_timer;
    qint64 m_hoverMs = 0;
};

} // namespace scopix
