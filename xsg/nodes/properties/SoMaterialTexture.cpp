// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoMaterialTexture.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>
#include <xsg/values/SbRotation.h>

template class SoTyped<SoMaterialTexture, SoTexture2>;

SoEnumTablePtr SoMaterialTexture::getUseNames()
{
    static const auto names =
        std::make_shared<const SoEnumTable>(SoEnumTable{{"BASE_COLOR", BaseColor},
                                                        {"METALLIC_ROUGHNESS", MetallicRoughness},
                                                        {"NORMAL", Normal},
                                                        {"OCCLUSION", Occlusion},
                                                        {"EMISSIVE", Emissive},
                                                        {"CLEAR_COAT", ClearCoat},
                                                        {"CLEAR_COAT_ROUGHNESS", ClearCoatRoughness},
                                                        {"CLEAR_COAT_NORMAL", ClearCoatNormal}});
    return names;
}

SoEnumTablePtr SoMaterialTexture::getCoordinatesNames()
{
    static const auto names =
        std::make_shared<const SoEnumTable>(SoEnumTable{{"FIRST", First}, {"SECOND", Second}});
    return names;
}

SbMatrix SoMaterialTexture::getTextureMatrix() const
{
    const SbVec2f scale = scaleFactor.getValue();
    const SbVec2f move = translation.getValue();
    return SbMatrix::scale({scale[0], scale[1], 1}) *
           SbMatrix::rotation(SbRotation({0, 0, 1}, rotation.getValue())) *
           SbMatrix::translation({move[0], move[1], 0});
}

void SoMaterialTexture::apply(SoState& state) const
{
    const int place = use.getValue();
    if (place >= 0 && place < UseCount)
        state.setMaterialTexture(static_cast<std::size_t>(place), UseCount, this);
}
