// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

using ExpressionCall = double (*)(const double* arguments, std::size_t count);

/// What a function makes of the units of its arguments.
enum class ExpressionUnits {
    Plain,     // takes and gives numbers without one
    Keeps,     // its result has the unit of its arguments
    Choice,    // as Keeps, but for the first argument, which has none
    Root,      // of an area, a length
    FromAngle, // takes an angle
    ToAngle,   // gives an angle
};

struct ExpressionFunction {
    std::string_view name;
    std::size_t fewest;
    std::size_t most;
    ExpressionUnits units;
    ExpressionCall call;
};

struct ExpressionConstant {
    std::string_view name;
    double value;
};

/// An operator between two numbers.
struct ExpressionOperator {
    std::string_view sign;
    int priority; // the higher, the tighter
    ExpressionCall call;
};

/// All null for what is not there.
const ExpressionFunction* findExpressionFunction(std::string_view name);
const ExpressionConstant* findExpressionConstant(std::string_view name);
const ExpressionOperator* findExpressionOperator(std::string_view sign);
ExpressionCall negation();
ExpressionCall logicalNot();
ExpressionCall powerOf();
