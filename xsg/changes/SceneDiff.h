// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/SceneChange.h>
#include <xsg/nodes/base/SoNode.h>

namespace xsg
{

/// What makes the scene below `before` the one below `after`, as files keep them: structure, names, values,
/// marks, connections and references. Nodes are the same where they stand in the same place, or else where
/// what was moved has the same content or the same name and type. In the order of the scene after. Fetches
/// connected values of both, changes nothing else.
XSG_API SceneChanges compareScenes(SoNode* before, SoNode* after);

} // namespace xsg
