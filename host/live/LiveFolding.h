// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveNode.h"

#include <QList>

namespace scopix
{

/// Lets go of what is below a mirrored node that nobody has unfolded any more, so that memory follows what is
/// shown. What somebody still needs stays, with all above it: what was edited, is selected or is watched by
/// an editor. Part of LiveScene.
class LiveFolding
{
public:
    explicit LiveFolding(LiveScene& scene)
        : m_scene(scene)
    {
    }
    using Selected = QList<SoFieldContainer*>;
    void fold(LiveNode& node, const Selected& selected);

private:
    static bool mayGo(const LiveNode& node, const Selected& selected);

    LiveScene& m_scene;
};

} // namespace scopix
