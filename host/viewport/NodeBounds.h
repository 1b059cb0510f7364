// SPDX-License-Identifier: MIT
// How much room a part of a scene takes.
#pragma once

#include <xsg/values/SbBox.h>

class SoNode;

namespace scopix
{

/// Around everything that can be seen of the node, wherever below the root it stands, in the root's
/// coordinates. Empty where there is nothing of it to see.
SbBox3f findPartBox(SoNode* root, SoNode* part);

} // namespace scopix
