// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/properties/SoTextureCoordinates.h>

/// Further places in textures at the corners of the vertex shapes that follow, one per point, for the
/// SoMaterialTexture nodes that ask for them.
class XSG_API SoSecondTextureCoordinates : public SoTyped<SoSecondTextureCoordinates, SoTextureCoordinates>
{
public:
    static constexpr const char* ClassName = "SecondTextureCoordinates";

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoSecondTextureCoordinates, SoTextureCoordinates>;
