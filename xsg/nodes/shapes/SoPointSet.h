// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/shapes/SoVertexShape.h>

/// Each of the points, drawn as a dot.
class XSG_API SoPointSet : public SoTyped<SoPointSet, SoVertexShape>
{
public:
    static constexpr const char* ClassName = "PointSet";

protected:
    SoGeometry::Kind getKind() const override { return SoGeometry::Kind::Points; }
    void collectCorners(std::uint32_t pointCount, Corners& corners) const override;
};

extern template class SoTyped<SoPointSet, SoVertexShape>;
