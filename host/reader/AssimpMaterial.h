// SPDX-License-Identifier: MIT
// From the importer's materials and pictures to those of a model's plain data.
#pragma once

#include "model/ModelData.h"

#include <QString>

struct aiMaterial;
struct aiScene;

namespace scopix
{

/// Adds the material's picture to the model where it is a new one; `folder` is where the model's file is.
ModelData::Material fromAssimp(const aiMaterial& material, const aiScene& scene, const QString& folder,
                               ModelData& model);

} // namespace scopix
