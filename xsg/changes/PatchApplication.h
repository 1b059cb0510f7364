// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/SceneChange.h>
#include <xsg/nodes/base/SoNode.h>

#include <string>
#include <vector>

namespace xsg
{

/// What became of a patch.
struct PatchResult {
    int applied = 0;
    int alreadySo = 0;                // was so before
    std::vector<std::string> misfits; // a sentence for each change that does not fit the scene

    bool isWhole() const { return misfits.empty(); }
};

/// Makes the changes, as far as they fit the scene; the root itself may become another one. Applied once
/// more, the same changes change nothing. Belongs to the graph's thread.
XSG_API PatchResult applyChanges(const SceneChanges& changes, SoRef<SoNode>& root);

} // namespace xsg
