// SPDX-License-Identifier: MIT
#include "fields/Description.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <algorithm>
#include <unordered_map>

namespace inspector
{

namespace
{

using Descriptions = std::vector<const Description*>;

// Those of the fields of a type of node; null for none.
const Descriptions* descriptionsOf(std::string_view node)
{
    static const auto byNode = [] {
        std::unordered_map<std::string_view, Descriptions> all;
        for (const Description& each : allDescriptions())
            all[each.node].push_back(&each);
        return all;
    }();
    const auto found = byNode.find(node);
    return found == byNode.end() ? nullptr : &found->second;
}

int placeOf(const SoField* field)
{
    const Description* found = findDescription(*field);
    const auto& all = allDescriptions();
    return found ? int(found - all.data()) : int(all.size());
}

} // namespace

const Description* findDescription(const SoField& field)
{
    const SoFieldContainer* container = field.getContainer();
    if (!container)
        return nullptr;
    const Descriptions* known = descriptionsOf(container->getTypeId().getName().getString());
    if (!known)
        return nullptr;
    const std::string_view name = field.getName().getString();
    const auto found = std::find_if(known->begin(), known->end(),
                                    [name](const Description* each) { return each->field == name; });
    return found == known->end() ? nullptr : *found;
}

std::vector<SoField*> fieldsInOrder(const SoFieldContainer& node)
{
    const SoFieldData* data = node.getFieldData();
    std::vector<std::pair<int, SoField*>> placed;
    for (int i = 0; i < data->getNumFields(); ++i) {
        SoField* field = data->getField(&node, i);
        placed.emplace_back(placeOf(field), field);
    }
    std::stable_sort(placed.begin(), placed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<SoField*> fields;
    for (const auto& each : placed)
        fields.push_back(each.second);
    return fields;
}

} // namespace inspector
