// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/properties/SoTexture2.h>

#include <unordered_set>
#include <vector>

namespace scopix
{

/// Calls `visit` for every texture below `root`, once each.
template <class Visit>
void forEachTexture(SoNode* root, Visit visit)
{
    std::unordered_set<const SoNode*> shared;
    std::vector<SoNode*> pending{root};
    while (!pending.empty()) {
        SoNode* node = pending.back();
        pending.pop_back();
        if (node->getRefCount() > 1 && !shared.insert(node).second)
            continue; // seen already; what has one reference is met once
        if (node->getTypeId() == SoTexture2::getClassTypeId())
            visit(static_cast<SoTexture2&>(*node));
        if (SoGroup* group = node->asGroup())
            pending.insert(pending.end(), group->getChildren().begin(), group->getChildren().end());
    }
}

} // namespace scopix
