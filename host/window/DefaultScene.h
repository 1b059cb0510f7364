// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

namespace scopix
{

/// The scene that is open when no file is: a few lit solids, read from the resources.
SoRef<SoNode> makeDefaultScene();
/// By the root's name, which the resource gives.
bool isDefaultScene(const SoNode* root);

} // namespace scopix
