// SPDX-License-Identifier: MIT
#include "ExpressionUnit.h"

#include <algorithm>

namespace
{

constexpr double Pi = 3.141592653589793;
using Q = SpxQuantity;

constexpr ExpressionUnit Units[] = {
    {"rad", Q::Angle, 1},         {"mrad", Q::Angle, 0.001},
    {"deg", Q::Angle, Pi / 180},  {"\u00B0", Q::Angle, Pi / 180},
    {"turn", Q::Angle, 2 * Pi},   {"turns", Q::Angle, 2 * Pi},
    {"m", Q::Length, 1},          {"km", Q::Length, 1000},
    {"dm", Q::Length, 0.1},       {"cm", Q::Length, 0.01},
    {"mm", Q::Length, 0.001},     {"um", Q::Length, 1e-6},
    {"\u00B5m", Q::Length, 1e-6}, {"\u03BCm", Q::Length, 1e-6},
    {"in", Q::Length, 0.0254},    {"inch", Q::Length, 0.0254},
    {"ft", Q::Length, 0.3048},    {"yd", Q::Length, 0.9144},
    {"mi", Q::Length, 1609.344},  {"s", Q::Time, 1},
    {"ms", Q::Time, 0.001},       {"us", Q::Time, 1e-6},
    {"\u00B5s", Q::Time, 1e-6},   {"\u03BCs", Q::Time, 1e-6},
    {"ns", Q::Time, 1e-9},        {"min", Q::Time, 60},
    {"h", Q::Time, 3600},
};

} // namespace

const ExpressionUnit* findExpressionUnit(std::string_view name)
{
    const auto* found = std::find_if(std::begin(Units), std::end(Units),
                                     [&](const ExpressionUnit& unit) { return unit.name == name; });
    return found == std::end(Units) ? nullptr : found;
}

SbSentence nameOfQuantity(SpxQuantity quantity)
{
    switch (quantity) {
    case SpxQuantity::Angle:
        return SbSentence("an angle");
    case SpxQuantity::Length:
        return SbSentence("a length");
    case SpxQuantity::Time:
        return SbSentence("a time");
    default:
        return SbSentence("a plain number");
    }
}
