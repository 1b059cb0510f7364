// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/shapes/SoVertexShape.h>

/// Triangles, each of three points named by their place in the list of points.
class XSG_API SoIndexedTriangleSet : public SoTyped<SoIndexedTriangleSet, SoVertexShape>
{
public:
    static constexpr const char* ClassName = "IndexedTriangleSet";

    /// Three per triangle; a triangle that names a point that is not there is left out.
    SoMFInt32 index{this, "index"};

protected:
    SoGeometry::Kind getKind() const override { return SoGeometry::Kind::Triangles; }
    void collectCorners(std::uint32_t pointCount, Corners& corners) const override;
};

extern template class SoTyped<SoIndexedTriangleSet, SoVertexShape>;
