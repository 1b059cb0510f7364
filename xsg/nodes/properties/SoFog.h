// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>

/// Lets what follows fade into a colour with its distance from the eye.
class XSG_API SoFog : public SoTyped<SoFog, SoNode>
{
public:
    static constexpr const char* ClassName = "Fog";
    enum Kind { Linear = 0, Exp = 1, Exp2 = 2, None = 3 };

    SoSFEnum kind{this, "kind", getKindNames(), Linear}; // how it grows with distance
    SoSFColor color{this, "color", {1, 1, 1}};
    SoSFFloat visibility{this, "visibility", 100.0F}; // the distance at which nothing else is seen

    static SoEnumTablePtr getKindNames();
    void apply(SoState& state) const override;
};

extern template class SoTyped<SoFog, SoNode>;
