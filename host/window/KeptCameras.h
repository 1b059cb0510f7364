// SPDX-License-Identifier: MIT
// The cameras of a scene, and views that are kept as such.
#pragma once

#include "viewport/SceneCamera.h"

#include <xsg/actions/SoPath.h>

#include <memory>
#include <vector>

class SpxCommand;

namespace scopix
{

/// To all cameras of the scene, those that do not count at present included.
std::vector<SoPath> findCameras(SoNode* root);
/// The camera at the end of the path, as it stands in the world.
SceneCamera cameraAt(const SoPath& path);

/// Adds a copy of the camera, which is in world coordinates, to the end of the scene, named "View1", "View2"
/// and so on, in a switch that leaves it out: the scene looks as before.
std::unique_ptr<SpxCommand> makeKeepCamera(SoGroup& root, SoCamera& camera);

} // namespace scopix
