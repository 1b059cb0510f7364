// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>

/// How finely what follows is drawn.
class XSG_API SoComplexity : public SoTyped<SoComplexity, SoNode>
{
public:
    static constexpr const char* ClassName = "Complexity";

    SoSFFloat value{this, "value", 0.5F}; // 0 coarse to 1 fine: round shapes
    SoSFFloat textureQuality{this, "textureQuality",
                             0.5F}; // 0 no textures, below 0.5 blocky, above 0.5 smoothest

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoComplexity, SoNode>;
