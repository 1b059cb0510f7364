// SPDX-License-Identifier: MIT
#include "reader/PhysicalMaterial.h"

#include "reader/ModelPictures.h"
#include "reader/Opacity.h"

#include <xsg/nodes/properties/SoMaterialTexture.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>

#include <assimp/GltfMaterial.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace scopix
{

namespace
{

using Use = SoMaterialTexture::Use;

struct Slot {
    Use use;
    aiTextureType type;
    unsigned index;
};

// Where the pictures are; of those for one use the first counts.
constexpr Slot Slots[] = {
    {Use::BaseColor, aiTextureType_BASE_COLOR, 0},      {Use::BaseColor, aiTextureType_DIFFUSE, 0},
    {Use::MetallicRoughness, aiTextureType_UNKNOWN, 0}, {Use::Normal, aiTextureType_NORMALS, 0},
    {Use::Occlusion, aiTextureType_LIGHTMAP, 0},        {Use::Emissive, aiTextureType_EMISSIVE, 0},
    {Use::ClearCoat, aiTextureType_CLEARCOAT, 0},       {Use::ClearCoatRoughness, aiTextureType_CLEARCOAT, 1},
    {Use::ClearCoatNormal, aiTextureType_CLEARCOAT, 2}};

std::optional<float> numberOf(const aiMaterial& material, const char* key, unsigned type, unsigned index)
{
    ai_real value = 0;
    const bool isKnown = material.Get(key, type, index, value) == aiReturn_SUCCESS && std::isfinite(value);
    return isKnown ? std::optional<float>(static_cast<float>(value)) : std::nullopt;
}

std::optional<SbColor> colorOf(const aiMaterial& material, const char* key, unsigned type, unsigned index)
{
    aiColor4D c;
    const bool isKnown = material.Get(key, type, index, c) == aiReturn_SUCCESS && std::isfinite(c.r) &&
                         std::isfinite(c.g) && std::isfinite(c.b);
    return isKnown ? std::optional<SbColor>(SbColor(c.r, c.g, c.b)) : std::nullopt;
}

struct FoundPicture {
    Slot slot;
    aiString path;
    int coordinates = 0;
    aiTextureMapMode mode[2] = {aiTextureMapMode_Wrap, aiTextureMapMode_Wrap};
};

// One for each use.
std::vector<FoundPicture> findPictures(const aiMaterial& material)
{
    std::vector<FoundPicture> all;
    for (const Slot& slot : Slots) {
        FoundPicture found{slot, {}, 0};
        if ((!all.empty() && all.back().slot.use == slot.use) ||
            material.GetTexture(slot.type, slot.index, &found.path, nullptr, nullptr, nullptr, nullptr,
                                found.mode) != aiReturn_SUCCESS ||
            found.path.length == 0)
            continue;
        material.Get(AI_MATKEY_UVWSRC(slot.type, slot.index), found.coordinates);
        all.push_back(found);
    }
    return all;
}

// Where the glossiness is known, the file speaks of a colour of highlights in place of metal.
bool isGlossy(const aiMaterial& material)
{
    return numberOf(material, AI_MATKEY_GLOSSINESS_FACTOR).has_value();
}

int alphaModeOf(const aiMaterial& material)
{
    aiString mode;
    if (material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) != aiReturn_SUCCESS)
        return opacityOf(material) < 1 ? SoPhysicalMaterial::Blend : SoPhysicalMaterial::Opaque;
    if (mode == aiString("MASK"))
        return SoPhysicalMaterial::Mask;
    return mode == aiString("BLEND") ? SoPhysicalMaterial::Blend : SoPhysicalMaterial::Opaque;
}

float share(std::optional<float> number, float otherwise)
{
    return std::clamp(number.value_or(otherwise), 0.0F, 1.0F);
}

} // namespace

// Other formats name a metal of 0 for want of better knowledge.
bool isPhysical(const aiMaterial& material)
{
    aiString mode;
    const std::optional<float> metallic = numberOf(material, AI_MATKEY_METALLIC_FACTOR);
    const std::optional<float> roughness = numberOf(material, AI_MATKEY_ROUGHNESS_FACTOR);
    if (material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) == aiReturn_SUCCESS)
        return metallic.has_value() || isGlossy(material);
    return (metallic && *metallic > 0) || (metallic && roughness && *roughness > 0);
}

bool keepsPicture(const aiMaterial& material, const aiString& path)
{
    if (!isPhysical(material))
        return false;
    const std::vector<FoundPicture> all = findPictures(material);
    return std::any_of(all.begin(), all.end(), [&](const FoundPicture& each) { return each.path == path; });
}

std::array<int, 2> coordinatesOf(const aiMaterial& material)
{
    if (!isPhysical(material))
        return {0, -1};
    std::array<int, 2> places{-1, -1};
    for (const FoundPicture& found : findPictures(material)) {
        if (places[0] < 0 || places[0] == found.coordinates)
            places[0] = found.coordinates;
        else if (places[1] < 0)
            places[1] = found.coordinates;
    }
    places[0] = std::max(places[0], 0);
    return places;
}

unsigned countWithoutCoordinates(const aiMaterial& material)
{
    const std::array<int, 2> places = coordinatesOf(material);
    const std::vector<FoundPicture> all = findPictures(material);
    return static_cast<unsigned>(std::count_if(all.begin(), all.end(), [&](const FoundPicture& each) {
        return each.coordinates != places[0] && each.coordinates != places[1];
    }));
}

void setCoordinates(aiMaterial& material, int use, int coordinates)
{
    for (const Slot& slot : Slots) {
        if (slot.use == use)
            material.AddProperty(&coordinates, 1, AI_MATKEY_UVWSRC(slot.type, slot.index));
    }
}

ModelData::PhysicalSurface physicalSurfaceOf(const aiMaterial& material)
{
    ModelData::PhysicalSurface surface;
    if (!isPhysical(material))
        return surface;
    surface.isPhysical = 1;
    const SbColor white(1, 1, 1);
    const std::optional<SbColor> diffuse = colorOf(material, AI_MATKEY_COLOR_DIFFUSE);
    const std::optional<SbColor> base = colorOf(material, AI_MATKEY_BASE_COLOR);
    const std::optional<float> gloss = numberOf(material, AI_MATKEY_GLOSSINESS_FACTOR);
    surface.baseColor = gloss ? diffuse.value_or(white) : base.value_or(diffuse.value_or(white));
    surface.metallic = gloss ? 0 : share(numberOf(material, AI_MATKEY_METALLIC_FACTOR), 1);
    surface.roughness =
        gloss ? 1 - share(gloss, 1) : share(numberOf(material, AI_MATKEY_ROUGHNESS_FACTOR), 1);
    surface.emissive = colorOf(material, AI_MATKEY_COLOR_EMISSIVE).value_or(SbColor());
    surface.emissiveStrength = numberOf(material, AI_MATKEY_EMISSIVE_INTENSITY).value_or(1);
    surface.normalScale =
        numberOf(material, AI_MATKEY_GLTF_TEXTURE_SCALE(aiTextureType_NORMALS, 0)).value_or(1);
    surface.occlusionStrength =
        share(numberOf(material, AI_MATKEY_GLTF_TEXTURE_STRENGTH(aiTextureType_LIGHTMAP, 0)), 1);
    surface.clearCoat = share(numberOf(material, AI_MATKEY_CLEARCOAT_FACTOR), 0);
    surface.clearCoatRoughness = share(numberOf(material, AI_MATKEY_CLEARCOAT_ROUGHNESS_FACTOR), 0);
    surface.clearCoatNormalScale =
        numberOf(material, AI_MATKEY_GLTF_TEXTURE_SCALE(aiTextureType_CLEARCOAT, 2)).value_or(1);
    surface.alphaMode = alphaModeOf(material);
    surface.opacity = opacityOf(material);
    surface.alphaCutoff = share(numberOf(material, AI_MATKEY_GLTF_ALPHACUTOFF), 0.5F);
    const float letThrough = share(numberOf(material, AI_MATKEY_TRANSMISSION_FACTOR), 0);
    if (letThrough > 0 && surface.alphaMode == SoPhysicalMaterial::Opaque) {
        surface.alphaMode = SoPhysicalMaterial::Blend;
        surface.opacity = 1 - letThrough;
    }
    return surface;
}

std::vector<ModelData::SurfacePicture> surfacePicturesOf(const aiMaterial& material, ModelPictures& pictures)
{
    std::vector<ModelData::SurfacePicture> all;
    if (!isPhysical(material))
        return all;
    const std::array<int, 2> places = coordinatesOf(material);
    for (const FoundPicture& found : findPictures(material)) {
        const bool isSecond = found.coordinates == places[1];
        if (!isSecond && found.coordinates != places[0])
            continue;
        const auto clamps = [&](int side) { return found.mode[side] == aiTextureMapMode_Clamp ? 1 : 0; };
        all.push_back({found.slot.use,
                       pictures.add(found.path.C_Str()),
                       isSecond ? 1 : 0,
                       clamps(0),
                       clamps(1),
                       {},
                       {1, 1},
                       0});
    }
    return all;
}

} // namespace scopix
