// SPDX-License-Identifier: MIT
// From the importer's scene to a model's plain data.
#pragma once

#include "model/ModelData.h"

struct aiScene;

namespace scopix
{

class ModelPictures;

ModelData fromAssimp(const aiScene& scene, ModelPictures& pictures);

} // namespace scopix
