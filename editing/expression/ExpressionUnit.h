// SPDX-License-Identifier: MIT
#pragma once

#include "SpxExpression.h"

/// A unit as it is typed.
struct ExpressionUnit {
    std::string_view name;
    SpxQuantity quantity;
    double size; // in radians, metres, seconds
};

/// Null for what is no unit.
const ExpressionUnit* findExpressionUnit(std::string_view name);
/// "an angle", ...
SbSentence nameOfQuantity(SpxQuantity quantity);
