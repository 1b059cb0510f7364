// SPDX-License-Identifier: MIT
#include "reader/AssimpMaterial.h"

#include "reader/ModelPictures.h"
#include "reader/Opacity.h"
#include "reader/PhysicalMaterial.h"

#include <assimp/GltfMaterial.h>
#include <assimp/material.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

// The exponent of a highlight that counts as fully sharp.
constexpr float SharpestExponent = 128;
// How much of a metal's colour is left to the light that is not mirrored: without surroundings to mirror, a
// true metal would be black.
constexpr float MetalDiffuse = 0.45F;
// Of the diffuse colour, where a file knows of no ambient one.
constexpr float AmbientPart = 0.6F;

// What was computed from a file's numbers is shown and edited: short ones are easier on the eye.
SbColor rounded(const SbVec3f& c)
{
    const auto part = [](float f) { return std::round(f * 1000) / 1000; };
    return {part(c[0]), part(c[1]), part(c[2])};
}

SbColor toColor(const aiColor4D& c)
{
    return {c.r, c.g, c.b};
}

SbColor colorOf(const aiMaterial& material, const char* key, unsigned type, unsigned index,
                const SbColor& otherwise)
{
    aiColor4D color;
    return material.Get(key, type, index, color) == aiReturn_SUCCESS ? toColor(color) : otherwise;
}

float numberOf(const aiMaterial& material, const char* key, unsigned type, unsigned index, float otherwise)
{
    ai_real value = 0;
    const bool known = material.Get(key, type, index, value) == aiReturn_SUCCESS && std::isfinite(value);
    return known ? static_cast<float>(value) : otherwise;
}

float transparencyOf(const aiMaterial& material)
{
    aiString mode;
    float opacity = opacityOf(material);
    if (material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) == aiReturn_SUCCESS && mode == aiString("OPAQUE"))
        opacity = 1; // its alpha is to be ignored
    const float letThrough = numberOf(material, AI_MATKEY_TRANSMISSION_FACTOR, 0);
    return std::round(1000 * std::clamp(std::max(1 - opacity, letThrough), 0.0F, 1.0F)) / 1000;
}

// Physically based: a base colour, how metallic and how rough.
void applyPbr(const aiMaterial& material, float metallic, ModelData::Material& result)
{
    const float rough = std::clamp(numberOf(material, AI_MATKEY_ROUGHNESS_FACTOR, 1), 0.0F, 1.0F);
    metallic = std::clamp(metallic, 0.0F, 1.0F);
    const SbColor base = colorOf(material, AI_MATKEY_BASE_COLOR, result.diffuse);
    const float sharp = 1 - rough;
    result.diffuse = metallic > 0 ? rounded(base * (1 - metallic * (1 - MetalDiffuse))) : base;
    const SbVec3f coat = SbVec3f(0.5F, 0.5F, 0.5F) * (sharp * (1 - metallic));
    result.specular = rounded(coat + base * (metallic * (0.4F + 0.6F * sharp)));
    result.shininess = std::max(0.02F, std::round(1000 * sharp) / 1000);
}

void takeClassic(const aiMaterial& material, ModelData::Material& result)
{
    result.specular = colorOf(material, AI_MATKEY_COLOR_SPECULAR, {});
    const float exponent = numberOf(material, AI_MATKEY_SHININESS, 0.2F * SharpestExponent);
    result.shininess = std::clamp(exponent / SharpestExponent, 0.0F, 1.0F);
}

struct TextureUse {
    aiString path;
    aiTextureMapMode mode[2] = {aiTextureMapMode_Wrap, aiTextureMapMode_Wrap};
};

bool findTexture(const aiMaterial& material, TextureUse& use)
{
    for (const aiTextureType type : {aiTextureType_BASE_COLOR, aiTextureType_DIFFUSE}) {
        if (material.GetTexture(type, 0, &use.path, nullptr, nullptr, nullptr, nullptr, use.mode) ==
            aiReturn_SUCCESS)
            return true;
    }
    return false;
}

} // namespace

ModelData::Material fromAssimp(const aiMaterial& material, ModelPictures& pictures)
{
    ModelData::Material result;
    aiString name;
    if (material.Get(AI_MATKEY_NAME, name) == aiReturn_SUCCESS)
        result.name = name.C_Str();
    result.diffuse = colorOf(material, AI_MATKEY_COLOR_DIFFUSE, result.diffuse);
    result.emissive = colorOf(material, AI_MATKEY_COLOR_EMISSIVE, {});
    ai_real metallic = 0;
    if (material.Get(AI_MATKEY_METALLIC_FACTOR, metallic) == aiReturn_SUCCESS)
        applyPbr(material, static_cast<float>(metallic), result);
    else
        takeClassic(material, result);
    result.ambient = rounded(result.diffuse * AmbientPart);
    result.transparency = transparencyOf(material);
    result.physical = physicalSurfaceOf(material);
    result.pictures = surfacePicturesOf(material, pictures);
    TextureUse use;
    if (!isPhysical(material) && findTexture(material, use)) {
        result.picture = pictures.add(use.path.C_Str());
        result.clampS = use.mode[0] == aiTextureMapMode_Clamp;
        result.clampT = use.mode[1] == aiTextureMapMode_Clamp;
    }
    return result;
}

} // namespace scopix
