// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFInt32.h>
#include <xsg/nodes/shapes/SoVertexShape.h>

/// Lines from point to point. Each joins as many of the next points as its count says; without counts one
/// line joins all.
class XSG_API SoLineSet : public SoTyped<SoLineSet, SoVertexShape>
{
public:
    static constexpr const char* ClassName = "LineSet";

    SoMFInt32 counts{this, "counts"}; // points in each line

protected:
    SoGeometry::Kind getKind() const override { return SoGeometry::Kind::Lines; }
    void collectCorners(std::uint32_t pointCount, Corners& corners) const override;
};

extern template class SoTyped<SoLineSet, SoVertexShape>;
