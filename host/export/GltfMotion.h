// SPDX-License-Identifier: MIT
#pragma once

#include "export/GltfContent.h"

namespace scopix
{

class SceneMotion;

/// Adds skins and clips to content that is tidy. What moves in a way that the format does not know stays as
/// it is at present, and is counted.
void addMotion(GltfContent& content, const SceneMotion& motion);

/// Of the skin's bones, those that bend any point, in their order.
std::vector<int> bonesInUse(const SoSkin& skin);

} // namespace scopix
