// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFVec3f.h>
#include <xsg/nodes/base/SoNode.h>

/// The directions of light reflection at the corners of the vertex shapes that follow, one per point. Where
/// they are missing or of another number than the points, a shape makes its own.
class XSG_API SoNormals : public SoTyped<SoNormals, SoNode>
{
public:
    static constexpr const char* ClassName = "Normals";

    SoMFVec3f vectors{this, "vectors"};

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoNormals, SoNode>;
