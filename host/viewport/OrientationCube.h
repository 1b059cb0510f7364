// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewTool.h"

#include <xsg/values/SbVec.h>

#include <QFont>
#include <QPainterPath>
#include <QPolygonF>

#include <map>
#include <optional>
#include <vector>

namespace scopix
{

class SceneView;
class ViewSight;

/// A small cube in the view's corner that shows from where the scene is seen. A click on one of its faces,
/// edges or corners looks from there; a drag turns the view. GUI thread only.
class OrientationCube : public ViewTool
{
public:
    /// The view must outlive it.
    explicit OrientationCube(SceneView& view);

    void setShown(bool on);
    bool isShown() const { return m_isShown; }
    /// Where this part of the cube can be clicked, if it is in sight: a face has one number that is not 0, an
    /// edge two, a corner three.
    std::optional<QPointF> placeOf(const SbVec3f& side) const;

    bool mousePressed(QMouseEvent& event) override;
    bool mouseMoved(QMouseEvent& event) override;
    bool mouseReleased(QMouseEvent& event) override;
    bool mouseDoubleClicked(QMouseEvent& event) override;
    void mouseLeft() override;
    void paint(QPainter& painter, const ViewSight& sight) override;
    std::optional<QCursor> getCursor() const override;

private:
    /// A ninth of a face.
    struct Cell {
        SbVec3f side; // from where a click looks
        QPolygonF outline;
    };
    struct Face {
        QString text;
        QPolygonF outline; // from the upper left corner of the text on, clockwise
        float towards;     // 1: seen from straight ahead
        std::vector<Cell> cells;
    };

    std::vector<Face> makeFaces(const ViewSight& sight) const;
    QPointF getCenter() const;
    std::optional<SbVec3f> sideAt(const QPointF& place) const;
    bool isAt(const QPointF& place) const;
    void hover(const std::optional<SbVec3f>& side);
    const QPainterPath& outlineOf(const QString& text);

    SceneView& m_view;
    bool m_isShown = true;
    std::optional<SbVec3f> m_hovered;
    bool m_isHeld = false;
    bool m_hasMoved = false;
    QPointF m_pressed;
    QPointF m_last;
    std::map<QString, QPainterPath> m_outlines; // of texts in this font
    QFont m_font;
};

} // namespace scopix
