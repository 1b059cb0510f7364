// SPDX-License-Identifier: MIT
#include "reader/Opacity.h"

#include <assimp/GltfMaterial.h>
#include <assimp/material.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

float statedOpacity(const aiMaterial& material)
{
    ai_real value = 1;
    const bool isKnown = material.Get(AI_MATKEY_OPACITY, value) == aiReturn_SUCCESS && std::isfinite(value);
    return isKnown ? std::clamp(static_cast<float>(value), 0.0F, 1.0F) : 1;
}

} // namespace

bool isSaidInvisible(const aiMaterial& material)
{
    aiString mode; // of a format that leaves no doubt
    return statedOpacity(material) == 0 && material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) != aiReturn_SUCCESS;
}

float opacityOf(const aiMaterial& material)
{
    return isSaidInvisible(material) ? 1 : statedOpacity(material);
}

} // namespace scopix
