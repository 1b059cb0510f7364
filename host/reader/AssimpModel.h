// SPDX-License-Identifier: MIT
// From the importer's scene to a model's plain data.
#pragma once

#include "model/ModelData.h"

#include <QString>

struct aiScene;

namespace scopix
{

/// `folder`: where the model's file is, for pictures beside it.
ModelData fromAssimp(const aiScene& scene, const QString& folder);

} // namespace scopix
