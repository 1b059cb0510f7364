// SPDX-License-Identifier: MIT
// From the importer's materials to those of a model's plain data.
#pragma once

#include "model/ModelData.h"

struct aiMaterial;

namespace scopix
{

class ModelPictures;

/// Adds the material's picture to the others where it is a new one.
ModelData::Material fromAssimp(const aiMaterial& material, ModelPictures& pictures);

} // namespace scopix
