// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/SpxEditingExport.h>
#include <scopix/editing/expression/SpxExpression.h>

#include <string_view>
#include <vector>

class SoField;

/// What people are told of one field of one type of node, and which numbers they may type. A plain row of a
/// table that never changes; may be used on any thread. Headings, units and meanings are in English; they are
/// translated in the context "Field".
struct SPX_EDITING_API SpxFieldDescription {
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

    /// All of them, the fields of a node in the order in which they are shown.
    static const std::vector<SpxFieldDescription>& getAll();
    /// Null for a field that the table does not know.
    static const SpxFieldDescription* find(const SoField& field);
};
