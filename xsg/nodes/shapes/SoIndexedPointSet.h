// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/shapes/SoVertexShape.h>

/// Some of the points, drawn as dots.
class XSG_API SoIndexedPointSet : public SoTyped<SoIndexedPointSet, SoVertexShape>
{
public:
    static constexpr const char* ClassName = "IndexedPointSet";

    SoMFInt32 index{this, "index"}; // the places of the points in their list

protected:
    SoGeometry::Kind getKind() const override { return SoGeometry::Kind::Points; }
    void collectCorners(std::uint32_t pointCount, Corners& corners) const override;
};

extern template class SoTyped<SoIndexedPointSet, SoVertexShape>;
