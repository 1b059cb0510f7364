// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/PointMarks.h"

#include <QPoint>

struct SoPickedPoint;

namespace scopix
{

class HostServices;
class SceneView;

/// Joins the 3D view and what extensions see of it: points that they mark, and clicks that they hear of
/// before these select something. GUI thread only.
class ViewPoints
{
public:
    /// Both must outlive this.
    ViewPoints(HostServices& services, SceneView& view);
    ~ViewPoints();
    ViewPoints(const ViewPoints&) = delete;
    ViewPoints& operator=(const ViewPoints&) = delete;

    PointMarks& getMarks() { return m_marks; }

private:
    bool offer(const SoPickedPoint& hit, const QPoint& place);

    HostServices& m_services;
    SceneView& m_view;
    PointMarks m_marks;
};

} // namespace scopix
