// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/SceneChange.h>
#include <xsg/nodes/base/SoNode.h>

#include <string>
#include <vector>

class SoGroup;

namespace xsg
{

/// What became of a patch.
struct PatchResult {
    int applied = 0;
    int alreadySo = 0;               // was so before
    std::vector<SbSentence> misfits; // a sentence for each change that does not fit the scene

    bool isWhole() const { return misfits.empty(); }
};

/// Is told of what a patch changes beside values, before it happens, so that it can be taken back. It may
/// read, and must not write.
class PatchWatch
{
public:
    /// Children start..start+removed-1 go, and others come there.
    virtual void aboutToChangeChildren(SoGroup& group, int start, int removed) = 0;
    virtual void aboutToRename(SoNode& node) = 0;
    virtual void aboutToConnect(SoField& field) = 0;

protected:
    ~PatchWatch() = default;
};

/// Makes the changes, as far as they fit the scene; the root itself may become another one. Applied once
/// more, the same changes change nothing. `watch` may be null. Belongs to the graph's thread.
XSG_API PatchResult applyChanges(const SceneChanges& changes, SoRef<SoNode>& root,
                                 PatchWatch* watch = nullptr);

} // namespace xsg
