// SPDX-License-Identifier: MIT
// What makes a material of a model physically based.
#pragma once

#include "model/ModelData.h"

#include <assimp/material.h>

#include <array>

namespace scopix
{

class ModelPictures;

/// Whether the file says how metallic and how rough the surface is.
bool isPhysical(const aiMaterial& material);
/// Whether this picture is among those that the physical material has; none of another material is.
bool keepsPicture(const aiMaterial& material, const aiString& path);
/// The places of the material's texture coordinates among those of its meshes: of its base colour first, then
/// others; -1 for none. Pictures that need a third one are left out.
std::array<int, 2> coordinatesOf(const aiMaterial& material);
/// How many pictures that are.
unsigned countWithoutCoordinates(const aiMaterial& material);
/// For the pictures of this use, as SoMaterialTexture has them.
void setCoordinates(aiMaterial& material, int use, int coordinates);

/// Adds the pictures to the others where they are new ones.
ModelData::PhysicalSurface physicalSurfaceOf(const aiMaterial& material);
std::vector<ModelData::SurfacePicture> surfacePicturesOf(const aiMaterial& material, ModelPictures& pictures);

} // namespace scopix
