// SPDX-License-Identifier: MIT
#include "fields/Description.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <algorithm>

namespace inspector
{

namespace
{

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
    const std::string_view node = container->getTypeId().getName().getString();
    const std::string_view name = field.getName().getString();
    const auto& all = allDescriptions();
    const auto is = [&](const Description& each) { return each.node == node && each.field == name; };
    const auto found = std::find_if(all.begin(), all.end(), is);
    return found == all.end() ? nullptr : &*found;
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
