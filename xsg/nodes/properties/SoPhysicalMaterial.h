// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>

/// A physically based surface for what follows, as glTF 2.0 defines it; takes the place of an earlier
/// material of either kind. Colours are linear, unlike those of SoMaterial; pictures come from SoTexture2, as
/// the base colour, and SoMaterialTexture. An ignored field has its default.
class XSG_API SoPhysicalMaterial : public SoTyped<SoPhysicalMaterial, SoNode>
{
public:
    static constexpr const char* ClassName = "PhysicalMaterial";
    enum AlphaMode { Opaque = 0, Mask = 1, Blend = 2 };

    /// Shapes that colour their parts, faces or vertices take one after the other; the others take the first.
    SoMFColor baseColor{this, "baseColor", {{1, 1, 1}}};
    SoSFFloat metallic{this, "metallic", 0.0F};   // 0 not a metal to 1 metal
    SoSFFloat roughness{this, "roughness", 0.5F}; // 0 mirror to 1 matte
    SoSFColor emissiveColor{this, "emissiveColor"};
    SoSFFloat emissiveStrength{this, "emissiveStrength", 1.0F};     // times the colour
    SoSFFloat normalScale{this, "normalScale", 1.0F};               // of the normal picture's slopes
    SoSFFloat occlusionStrength{this, "occlusionStrength", 1.0F};   // 0: the occlusion picture has no effect
    SoSFFloat clearCoat{this, "clearCoat", 0.0F};                   // how much of a clear coat is on top
    SoSFFloat clearCoatRoughness{this, "clearCoatRoughness", 0.0F}; // of that coat
    SoSFFloat clearCoatNormalScale{this, "clearCoatNormalScale", 1.0F};
    SoSFEnum alphaMode{this, "alphaMode", getAlphaModeNames(), Opaque};
    SoSFFloat opacity{this, "opacity", 1.0F};         // times the picture's; for the modes but OPAQUE
    SoSFFloat alphaCutoff{this, "alphaCutoff", 0.5F}; // MASK: what is less opaque is not there

    static SoEnumTablePtr getAlphaModeNames();
    void apply(SoState& state) const override;
};

extern template class SoTyped<SoPhysicalMaterial, SoNode>;
