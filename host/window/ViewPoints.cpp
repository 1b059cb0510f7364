// SPDX-License-Identifier: MIT
#include "window/ViewPoints.h"

#include "services/HostServices.h"
#include "viewport/SceneView.h"

#include <xsg/nodes/shapes/SoVertexShape.h>

#include <QLineF>

namespace scopix
{

namespace
{

void findNearest(SpxPickedPoint& picked, const SoPickedPoint& hit, const ViewSight& sight,
                 const QPointF& place)
{
    for (const int point : picked.points) {
        const SbVec3f& corner = hit.points->points[point];
        const auto seen = sight.toScreen(hit.toWorld.multPoint(corner));
        const double distance = seen ? QLineF(*seen, place).length() : -1;
        if (seen && (picked.nearest < 0 || distance < picked.nearestDistance)) {
            picked.nearest = point;
            picked.nearestDistance = distance;
        }
    }
}

SpxPickedPoint describe(const SoPickedPoint& hit, const ViewSight& sight, const QPointF& place)
{
    SpxPickedPoint picked;
    picked.path = hit.path;
    picked.point = hit.point;
    const auto* shape = dynamic_cast<const SoVertexShape*>(hit.path.getTail());
    if (!shape || !hit.points)
        return picked;
    picked.pointsNode = SoRef<SoNode>(hit.points.get());
    const SoVertexShape::Part part = shape->findPart(hit.points->points.getNum(), hit.part);
    picked.face = part.face;
    picked.points = part.points;
    findNearest(picked, hit, sight, place);
    return picked;
}

} // namespace

ViewPoints::ViewPoints(HostServices& services, SceneView& view)
    : m_services(services)
    , m_view(view)
    , m_marks(view)
{
    m_view.setPickFilter([this](const SoPickedPoint& hit, const QPoint& at) { return offer(hit, at); });
}

ViewPoints::~ViewPoints()
{
    m_view.setPickFilter({});
}

bool ViewPoints::offer(const SoPickedPoint& hit, const QPoint& place)
{
    return m_services.hasPickListeners() &&
           m_services.offerPick(describe(hit, m_view.getSight(), QPointF(place) + QPointF(0.5, 0.5)));
}

} // namespace scopix
