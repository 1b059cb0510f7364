// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/shapes/SoVertexShape.h>

/// Strips of triangles: each point after the second makes a triangle with the two before it. Each strip takes
/// as many of the next points as its count says; without counts one strip takes all.
class XSG_API SoTriangleStripSet : public SoTyped<SoTriangleStripSet, SoVertexShape>
{
public:
    static constexpr const char* ClassName = "TriangleStripSet";

    SoMFInt32 counts{this, "counts"}; // points in each strip

protected:
    SoGeometry::Kind getKind() const override { return SoGeometry::Kind::Triangles; }
    void collectCorners(std::uint32_t pointCount, Corners& corners) const override;
};

extern template class SoTyped<SoTriangleStripSet, SoVertexShape>;
