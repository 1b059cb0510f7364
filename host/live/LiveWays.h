// SPDX-License-Identifier: MIT
#pragma once

#include "live/LiveNode.h"

#include <xsg/actions/SoPath.h>

#include <functional>
#include <list>
#include <vector>

namespace scopix
{

/// Ways to nodes of a LiveScene that are made as their parents are unfolded, and who waits for them. Part of
/// LiveScene.
class LiveWays
{
public:
    explicit LiveWays(LiveScene& scene);

    /// Makes the nodes along this path, and hands over the way to them: as far as there is one.
    void find(const std::vector<live::NodeId>& path, std::function<void(const SoPath&)> done);
    /// The children of the node are here, or will not come.
    void whenUnfolded(LiveNode& node, const std::function<void()>& act);
    /// Children came, or none will come any more.
    void goOn();
    /// Nobody hears of it any more.
    void clear() { m_waiting.clear(); }

private:
    using NodeRef = SoRef<LiveNode>;
    struct Waiting {
        std::vector<live::NodeId> ids;
        std::size_t next = 0;
        std::vector<NodeRef> found; // without the root
        std::function<void(const SoPath&)> done;
    };

    bool isOver() const;
    bool goOn(Waiting& waiting);

    LiveScene& m_scene;
    std::list<Waiting> m_waiting;
};

} // namespace scopix
