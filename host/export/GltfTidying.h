// SPDX-License-Identifier: MIT
#pragma once

#include "export/GltfContent.h"

namespace scopix
{

/// Takes out what only a scene graph needs, with all that is seen in the same place: a matrix that all
/// children have is their parent's, a node that has nothing but one mesh or one movement below it has that
/// itself, and nodes that nothing leads to go.
void tidy(GltfContent& content);
/// Readers find lights, cameras and bones by the names of their nodes: gives these a name of their own each.
void nameWhatIsReferredTo(GltfContent& content);

} // namespace scopix
