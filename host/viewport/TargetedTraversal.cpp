// SPDX-License-Identifier: MIT
#include "viewport/TargetedTraversal.h"

namespace scopix
{

TargetedTraversal::TargetedTraversal(const std::vector<const SoNode*>& nodes)
{
    std::vector<const SoNode*> below(nodes);
    while (!below.empty()) {
        const SoNode* node = below.back();
        below.pop_back();
        for (const SoGroup* group : node->getParents()) {
            if (m_above.insert(group).second)
                below.push_back(group);
        }
    }
    // What is chosen by distance counts whole: where the eye is does not matter here.
    state().chooseAll = true;
}

} // namespace scopix
