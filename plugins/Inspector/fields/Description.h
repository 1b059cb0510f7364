// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/expression/SpxExpression.h>

#include <string_view>
#include <vector>

class SoField;
class SoFieldContainer;

namespace inspector
{

/// What people are told of one field of one type of node; the place in the table is the place in the panel.
/// docs/nodes.md has the same meanings, as a test sees to.
struct Description {
    std::string_view node;
    std::string_view field;
    std::string_view heading; // above this field and those after it; "" for the one before
    SpxQuantity quantity;
    double softLow; // what a drag stays in; equal to softHigh: no limits
    double softHigh;
    double hardLow; // what can be typed
    double hardHigh;
    std::string_view unit; // where it is not that of the quantity
    std::string_view meaning;
};

const std::vector<Description>& allDescriptions();
/// Null for a field that the table does not know.
const Description* findDescription(const SoField& field);
/// The node's fields in the order in which the panel shows them: as the table has them, then the others.
std::vector<SoField*> fieldsInOrder(const SoFieldContainer& node);

} // namespace inspector
