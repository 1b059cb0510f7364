// SPDX-License-Identifier: MIT
// Skins, morph targets and animations of a scene that Assimp has read.
#pragma once

#include "model/ModelData.h"

struct aiScene;

namespace scopix
{

/// `model`: with the nodes and meshes of the scene. What leads to none of them is left out.
ModelMotion motionOf(const aiScene& scene, const ModelData& model);

/// How many tracks of the animations move something that there is no field for.
unsigned countTracksLeftOut(const aiScene& scene);
/// How many lights stand in a node that an animation moves: here they shine from where they are at rest.
unsigned countMovedLights(const aiScene& scene);
/// The same of cameras, which a view does not follow.
unsigned countMovedCameras(const aiScene& scene);

} // namespace scopix
