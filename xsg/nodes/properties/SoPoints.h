// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFVec3f.h>
#include <xsg/nodes/base/SoNode.h>

/// The corners of the vertex shapes that follow.
class XSG_API SoPoints : public SoTyped<SoPoints, SoNode>
{
public:
    static constexpr const char* ClassName = "Points";

    SoMFVec3f points{this, "points"};

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoPoints, SoNode>;
