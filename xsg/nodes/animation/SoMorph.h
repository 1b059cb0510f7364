// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFVec3f.h>
#include <xsg/nodes/animation/DerivedPoints.h>

/// Moves the points before it, and their normals, towards other shapes, for the vertex shapes after it: adds
/// what each target differs by, as much of it as its weight says. Lists of another length than weights times
/// points change nothing.
class XSG_API SoMorph : public SoTyped<SoMorph, SoNode>
{
public:
    static constexpr const char* ClassName = "Morph";

    SoMFFloat weights{this, "weights"};             // one for each target
    SoMFVec3f pointOffsets{this, "pointOffsets"};   // for all points of the first target, then of the next
    SoMFVec3f normalOffsets{this, "normalOffsets"}; // the same for the normals, or none

    void apply(SoState& state) const override;

private:
    mutable xsg::DerivedPoints m_made;
};

extern template class SoTyped<SoMorph, SoNode>;
