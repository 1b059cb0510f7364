// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFVec2f.h>
#include <xsg/nodes/base/SoNode.h>

/// Moves the texture on what follows: scales, then turns, then moves its coordinates.
class XSG_API SoTextureTransform : public SoTyped<SoTextureTransform, SoNode>
{
public:
    static constexpr const char* ClassName = "TextureTransform";

    SoSFVec2f translation{this, "translation"};
    SoSFFloat rotation{this, "rotation"}; // in radians
    SoSFVec2f scaleFactor{this, "scaleFactor", {1, 1}};
    SoSFVec2f center{this, "center"}; // stays in place while turning and scaling

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoTextureTransform, SoNode>;
