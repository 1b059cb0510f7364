// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/shapes/SoVertexShape.h>

/// Triangles, each of the next three points.
class XSG_API SoTriangleSet : public SoTyped<SoTriangleSet, SoVertexShape>
{
public:
    static constexpr const char* ClassName = "TriangleSet";

protected:
    SoGeometry::Kind getKind() const override { return SoGeometry::Kind::Triangles; }
    void collectCorners(std::uint32_t pointCount, Corners& corners) const override;
};

extern template class SoTyped<SoTriangleSet, SoVertexShape>;
