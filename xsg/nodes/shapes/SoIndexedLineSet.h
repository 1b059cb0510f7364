// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/shapes/SoVertexShape.h>

/// Lines from point to point, the points named by their places in the list.
class XSG_API SoIndexedLineSet : public SoTyped<SoIndexedLineSet, SoVertexShape>
{
public:
    static constexpr const char* ClassName = "IndexedLineSet";

    SoMFInt32 index{this, "index"}; // each line's points, -1 after each line

protected:
    SoGeometry::Kind getKind() const override { return SoGeometry::Kind::Lines; }
    void collectCorners(std::uint32_t pointCount, Corners& corners) const override;
};

extern template class SoTyped<SoIndexedLineSet, SoVertexShape>;
