// SPDX-License-Identifier: MIT
#include "fields/FieldOrder.h"

#include <scopix/editing/descriptions/SpxFieldDescription.h>
#include <xsg/core/SoFieldContainer.h>

#include <algorithm>

namespace inspector
{

namespace
{

int placeOf(const SoField* field)
{
    const SpxFieldDescription* found = SpxFieldDescription::find(*field);
    const auto& all = SpxFieldDescription::getAll();
    return found ? int(found - all.data()) : int(all.size());
}

} // namespace

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
