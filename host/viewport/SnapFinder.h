// SPDX-License-Identifier: MIT
#pragma once

#include "viewport/ViewSight.h"

#include <xsg/actions/SoMeasureAction.h>
#include <xsg/actions/SoRayPickAction.h>

#include <QPoint>

namespace scopix
{

class SceneView;

/// A place in the scene that the pointer means.
struct Snap {
    enum class Kind { Surface, Edge, Vertex };
    Kind kind = Kind::Surface;
    SbVec3d point; // in world coordinates, in double precision from what the scene holds
    SbVec3d from;  // of an edge, its ends
    SbVec3d to;
    double getEdgeLength() const { return (to - from).length(); }
};

/// Nothing where nothing is at the place or close to it. A vertex that can be seen within a few pixels comes
/// first, then an edge, then the surface. Lines between triangles that lie in one plane are no edges.
std::optional<Snap> findSnap(SceneView& view, const QPoint& place);

} // namespace scopix
