// SPDX-License-Identifier: MIT
// What of a scene reaches the farthest, for framing it.
#pragma once

#include <xsg/values/SbRotation.h>

#include <vector>

class SoNode;

namespace scopix
{

/// Points in the root's coordinates, of what can be seen of the part wherever it stands: a camera of this
/// orientation has all of the part in its picture exactly when it has them. Few, however large the scene is;
/// empty where there is nothing to see. Branches that lie within what is known already are passed over by
/// their boxes. Of a part with millions of corners the boxes of its shapes have to do, and of one with tens
/// of thousands of places its own box: framing never holds up the window.
std::vector<SbVec3f> findOutermostPoints(SoNode* root, SoNode* part, const SbRotation& orientation);

} // namespace scopix
