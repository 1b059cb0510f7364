// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/SceneChange.h>
#include <xsg/nodes/base/SoNode.h>

#include <functional>

namespace xsg
{

/// What makes the scene below `before` the one below `after`, as files keep them: structure, names, values,
/// marks, connections and references. Nodes are the same where they stand in the same place, or else where
/// what was moved has the same content or the same name and type. In the order of the scene after. Fetches
/// connected values of both, changes nothing else.
XSG_API SceneChanges compareScenes(SoNode* before, SoNode* after);
/// The same, calling `goOn` each few milliseconds with the part that is done, from 0 to 1, or less than 0 as
/// long as nobody knows; what it throws ends the comparison. The scenes must stay as they are meanwhile.
XSG_API SceneChanges compareScenes(SoNode* before, SoNode* after, const std::function<void(double)>& goOn);

} // namespace xsg
