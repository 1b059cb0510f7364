// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroup.h>

#include <string>

/// A branch in a line, each node by its name or its type: "Harbour(Sea(Blue Water) Sun)".
inline std::string outlineOf(SoNode* node)
{
    std::string all = node->getName().getLength() > 0 ? node->getName().getString()
                                                      : node->getTypeId().getName().getString();
    SoGroup* group = node->asGroup();
    if (!group || group->getNumChildren() == 0)
        return all;
    for (SoNode* child : group->getChildren())
        all += (child == group->getChild(0) ? "(" : " ") + outlineOf(child);
    return all + ")";
}
