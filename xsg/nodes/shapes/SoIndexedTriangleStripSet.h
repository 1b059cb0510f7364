// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/shapes/SoVertexShape.h>

/// Strips of triangles, the points named by their places in the list.
class XSG_API SoIndexedTriangleStripSet : public SoTyped<SoIndexedTriangleStripSet, SoVertexShape>
{
public:
    static constexpr const char* ClassName = "IndexedTriangleStripSet";

    SoMFInt32 index{this, "index"}; // each strip's points, -1 after each strip

protected:
    SoGeometry::Kind getKind() const override { return SoGeometry::Kind::Triangles; }
    void collectCorners(std::uint32_t pointCount, Corners& corners) const override;
};

extern template class SoTyped<SoIndexedTriangleStripSet, SoVertexShape>;
