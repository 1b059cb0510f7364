// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFVec2f.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/values/SbMatrix.h>

/// The picture of one property of the physically based surfaces that follow: an SoPhysicalMaterial multiplies
/// it with its own values. Takes the place of an earlier one for the same use; has no effect on an
/// SoMaterial, and no use for the inherited field `model`. Colours in pictures are those of sRGB, other
/// values are linear.
class XSG_API SoMaterialTexture : public SoTyped<SoMaterialTexture, SoTexture2>
{
public:
    static constexpr const char* ClassName = "MaterialTexture";

    enum Use {
        BaseColor = 0,         // and opacity; before it, SoTexture2 is that picture
        MetallicRoughness = 1, // blue: metallic, green: roughness
        Normal = 2,            // the red, green and blue of x, y and z, from 0 for -1 to 1
        Occlusion = 3,         // red: how much of the surroundings' light comes in
        Emissive = 4,
        ClearCoat = 5,          // red
        ClearCoatRoughness = 6, // green
        ClearCoatNormal = 7,
        UseCount = 8
    };
    enum Coordinates { First = 0, Second = 1 };

    SoSFEnum use{this, "use", getUseNames(), BaseColor};
    /// Where the picture lies: by the SoTextureCoordinates, or by the SoSecondTextureCoordinates.
    SoSFEnum coordinates{this, "coordinates", getCoordinatesNames(), First};
    /// What happens to the coordinates, before an SoTextureTransform: they are scaled, then turned around the
    /// origin, then moved.
    SoSFVec2f translation{this, "translation"};
    SoSFFloat rotation{this, "rotation"}; // in radians
    SoSFVec2f scaleFactor{this, "scaleFactor", {1, 1}};

    static SoEnumTablePtr getUseNames();
    static SoEnumTablePtr getCoordinatesNames();
    SbMatrix getTextureMatrix() const;
    void apply(SoState& state) const override;
};

extern template class SoTyped<SoMaterialTexture, SoTexture2>;
