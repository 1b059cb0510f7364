// SPDX-License-Identifier: MIT
#include "live/LiveFolding.h"

#include "live/LiveScene.h"

#include <algorithm>

namespace scopix
{

// Whoever keeps it otherwise finds it again: a node that is not destroyed comes back as the same one.
bool LiveFolding::mayGo(const LiveNode& node, const Selected& selected)
{
    return node.getNumChildren() == 0 && !node.m_isEdited && !node.hasSensors() &&
           node.m_propertiesFetched != LiveNode::Fetched::Asked &&
           node.m_childrenFetched != LiveNode::Fetched::Asked &&
           !selected.contains(const_cast<LiveNode*>(&node));
}

// A node that stands in several places may be unfolded in another one.
void LiveFolding::fold(LiveNode& node, const Selected& selected)
{
    if (node.getParents().size() > 1 || m_scene.getState() == LiveScene::State::Ended || node.getId() == 0 ||
        node.m_areChildrenEdited || node.m_childrenFetched != LiveNode::Fetched::Yes)
        return;
    const std::vector<SoNode*> children = node.getChildren();
    for (SoNode* child : children) {
        if (auto* live = dynamic_cast<LiveNode*>(child); live && live->getNumChildren() > 0)
            fold(*live, selected);
    }
    const auto isFree = [&selected](const SoNode* child) {
        const auto* live = dynamic_cast<const LiveNode*>(child);
        return live && mayGo(*live, selected);
    };
    if (!std::all_of(children.begin(), children.end(), isFree))
        return;
    node.m_fetched = {};
    node.m_objects = {};
    node.m_told = {};
    node.m_hasObjects = false;
    node.m_childrenFetched = LiveNode::Fetched::No;
    m_scene.apply([&node] { node.removeAllChildren(); });
    m_scene.watchLess(node);
}

} // namespace scopix
