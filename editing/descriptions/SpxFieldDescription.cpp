// SPDX-License-Identifier: MIT
#include "SpxFieldDescription.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <algorithm>
#include <unordered_map>

namespace
{

using Descriptions = std::vector<const SpxFieldDescription*>;

// Those of the fields of a type of node; null for none.
const Descriptions* descriptionsOf(std::string_view node)
{
    static const auto byNode = [] {
        std::unordered_map<std::string_view, Descriptions> all;
        for (const SpxFieldDescription& each : SpxFieldDescription::getAll())
            all[each.node].push_back(&each);
        return all;
    }();
    const auto found = byNode.find(node);
    return found == byNode.end() ? nullptr : &found->second;
}

} // namespace

const SpxFieldDescription* SpxFieldDescription::find(const SoField& field)
{
    const SoFieldContainer* container = field.getContainer();
    if (!container)
        return nullptr;
    const Descriptions* known = descriptionsOf(container->getTypeId().getName().getString());
    if (!known)
        return nullptr;
    const std::string_view name = field.getName().getString();
    const auto found = std::find_if(known->begin(), known->end(),
                                    [name](const SpxFieldDescription* each) { return each->field == name; });
    return found == known->end() ? nullptr : *found;
}
