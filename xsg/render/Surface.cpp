// SPDX-License-Identifier: MIT
#include <xsg/render/Surface.h>

#include <xsg/nodes/properties/SoPhysicalMaterial.h>

#include <algorithm>

namespace
{

using Use = SoMaterialTexture::Use;

bool hasColors(int use)
{
    return use == Use::BaseColor || use == Use::Emissive;
}

bool belongsToCoat(int use)
{
    return use == Use::ClearCoat || use == Use::ClearCoatRoughness || use == Use::ClearCoatNormal;
}

const SoTexture2* pictureOf(const SoState& state, int use)
{
    const SoMaterialTexture* own =
        state.materialTextures ? (*state.materialTextures)[static_cast<std::size_t>(use)] : nullptr;
    return own || use != Use::BaseColor ? own : state.texture;
}

xsg::SurfacePicture place(const SoState& state, const SoTexture2& node, int use, xsg::GpuTexture* texture)
{
    xsg::SurfacePicture picture;
    picture.texture = texture;
    picture.use = use;
    SbMatrix matrix;
    if (&node != state.texture) {
        const auto& own = static_cast<const SoMaterialTexture&>(node);
        matrix = own.getTextureMatrix();
        picture.coordinates = own.coordinates.getValue() == SoMaterialTexture::Second ? 1 : 0;
    }
    if (state.textureMatrix)
        matrix = matrix * state.textureMatrix->front();
    const float flat[] = {matrix[0][0], matrix[0][1], matrix[1][0], matrix[1][1], matrix[3][0], matrix[3][1]};
    std::copy_n(flat, 6, picture.matrix);
    return picture;
}

xsg::SurfaceFeatures featuresOf(const SoPhysicalMaterial& material)
{
    using namespace xsg;
    const int mode =
        material.alphaMode.isIgnored() ? int{SoPhysicalMaterial::Opaque} : material.alphaMode.getValue();
    const bool isCoated = !material.clearCoat.isIgnored() && material.clearCoat.getValue() > 0;
    return PhysicalSurface | (mode == SoPhysicalMaterial::Mask ? MaskedSurface : 0) |
           (mode == SoPhysicalMaterial::Blend ? BlendedSurface : 0) | (isCoated ? CoatedSurface : 0);
}

} // namespace

xsg::Surface xsg::makeSurface(const SoState& state, TextureStore& textures)
{
    Surface surface;
    if (!state.physicalMaterial)
        return surface;
    surface.features = featuresOf(*state.physicalMaterial) | (state.environment ? EnvironmentLit : 0);
    if (!state.texture && !state.materialTextures)
        return surface;
    std::vector<SurfacePicture> pictures;
    for (int use = 0; use < Use::UseCount; ++use) {
        const bool isSeen = !belongsToCoat(use) || (surface.features & CoatedSurface) != 0;
        const SoTexture2* node = isSeen ? pictureOf(state, use) : nullptr;
        GpuTexture* texture = node ? textures.get(node, state.textureQuality, hasColors(use)) : nullptr;
        if (!texture)
            continue;
        pictures.push_back(place(state, *node, use, texture));
        surface.features |= pictureFeature(use) | (pictures.back().coordinates == 1 ? SecondCoordinates : 0);
    }
    if (!pictures.empty())
        surface.pictures = std::make_shared<const std::vector<SurfacePicture>>(std::move(pictures));
    return surface;
}
