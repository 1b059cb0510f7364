// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFVec2f.h>
#include <xsg/nodes/base/SoNode.h>

/// The places in the texture at the corners of the vertex shapes that follow, one per point: (0, 0) is the
/// texture's lower left corner, (1, 1) the upper right.
class XSG_API SoTextureCoordinates : public SoTyped<SoTextureCoordinates, SoNode>
{
public:
    static constexpr const char* ClassName = "TextureCoordinates";

    SoMFVec2f points{this, "points"};

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoTextureCoordinates, SoNode>;
