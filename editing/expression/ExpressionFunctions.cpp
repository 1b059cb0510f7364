// SPDX-License-Identifier: MIT
#include "ExpressionFunctions.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

using Units = ExpressionUnits;
constexpr std::size_t Any = 64;

template <double (*Function)(double)>
double one(const double* a, std::size_t /*count*/)
{
    return Function(a[0]);
}

template <double (*Function)(double, double)>
double two(const double* a, std::size_t /*count*/)
{
    return Function(a[0], a[1]);
}

// What is not a number stays so, wherever it stands.
template <bool IsMaximum>
double extreme(const double* a, std::size_t count)
{
    double found = a[0];
    for (std::size_t i = 1; i < count && !std::isnan(found); ++i) {
        if (std::isnan(a[i]) || (IsMaximum ? a[i] > found : a[i] < found))
            found = a[i];
    }
    return found;
}

double clamp(const double* a, std::size_t /*count*/)
{
    return a[0] < a[1] ? a[1] : a[0] > a[2] ? a[2] : a[0];
}

double roundTo(const double* a, std::size_t count)
{
    return count == 1 ? std::round(a[0]) : std::round(a[0] / a[1]) * a[1];
}

// Its result has the divisor's sign, as a place in a repeating pattern needs it.
double modulo(double a, double b)
{
    return a - b * std::floor(a / b);
}

double sign(double a)
{
    return a > 0 ? 1 : a < 0 ? -1 : a;
}

double fraction(double a)
{
    return a - std::floor(a);
}

double isNan(double a)
{
    return std::isnan(a) ? 1 : 0;
}

double sum(const double* a, std::size_t count)
{
    double total = 0;
    for (std::size_t i = 0; i < count; ++i)
        total += a[i];
    return total;
}

double mean(const double* a, std::size_t count)
{
    return sum(a, count) / double(count);
}

double length(const double* a, std::size_t count)
{
    double found = 0;
    for (std::size_t i = 0; i < count; ++i)
        found = std::hypot(found, a[i]);
    return found;
}

double mix(const double* a, std::size_t /*count*/)
{
    return a[2] == 0 ? a[0] : a[2] == 1 ? a[1] : a[0] + a[2] * (a[1] - a[0]);
}

double choose(const double* a, std::size_t /*count*/)
{
    return a[0] != 0 ? a[1] : a[2];
}

constexpr ExpressionFunction Functions[] = {
    {"abs", 1, 1, Units::Keeps, one<std::fabs>},
    {"acos", 1, 1, Units::ToAngle, one<std::acos>},
    {"asin", 1, 1, Units::ToAngle, one<std::asin>},
    {"atan", 1, 1, Units::ToAngle, one<std::atan>},
    {"atan2", 2, 2, Units::ToAngle, two<std::atan2>},
    {"cbrt", 1, 1, Units::Plain, one<std::cbrt>},
    {"ceil", 1, 1, Units::Keeps, one<std::ceil>},
    {"clamp", 3, 3, Units::Keeps, clamp},
    {"cos", 1, 1, Units::FromAngle, one<std::cos>},
    {"exp", 1, 1, Units::Plain, one<std::exp>},
    {"floor", 1, 1, Units::Keeps, one<std::floor>},
    {"fract", 1, 1, Units::Keeps, one<fraction>},
    {"hypot", 1, Any, Units::Keeps, length},
    {"if", 3, 3, Units::Choice, choose},
    {"isnan", 1, 1, Units::Plain, one<isNan>},
    {"ln", 1, 1, Units::Plain, one<std::log>},
    {"log", 1, 1, Units::Plain, one<std::log>},
    {"log10", 1, 1, Units::Plain, one<std::log10>},
    {"log2", 1, 1, Units::Plain, one<std::log2>},
    {"max", 1, Any, Units::Keeps, extreme<true>},
    {"mean", 1, Any, Units::Keeps, mean},
    {"min", 1, Any, Units::Keeps, extreme<false>},
    {"mix", 3, 3, Units::Keeps, mix},
    {"mod", 2, 2, Units::Keeps, two<modulo>},
    {"pow", 2, 2, Units::Plain, two<std::pow>},
    {"round", 1, 2, Units::Keeps, roundTo},
    {"sign", 1, 1, Units::Plain, one<sign>},
    {"sin", 1, 1, Units::FromAngle, one<std::sin>},
    {"sqrt", 1, 1, Units::Root, one<std::sqrt>},
    {"sum", 1, Any, Units::Keeps, sum},
    {"tan", 1, 1, Units::FromAngle, one<std::tan>},
    {"trunc", 1, 1, Units::Keeps, one<std::trunc>},
};

constexpr ExpressionConstant Constants[] = {
    {"e", 2.718281828459045},
    {"inf", std::numeric_limits<double>::infinity()},
    {"nan", std::numeric_limits<double>::quiet_NaN()},
    {"pi", 3.141592653589793},
    {"tau", 6.283185307179586},
    {"\u03C0", 3.141592653589793},
    {"\u221E", std::numeric_limits<double>::infinity()},
};

constexpr ExpressionOperator Operators[] = {
    {"||", 1, [](const double* a, std::size_t) { return double(a[0] != 0 || a[1] != 0); }},
    {"&&", 2, [](const double* a, std::size_t) { return double(a[0] != 0 && a[1] != 0); }},
    {"==", 3, [](const double* a, std::size_t) { return double(a[0] == a[1]); }},
    {"!=", 3, [](const double* a, std::size_t) { return double(a[0] != a[1]); }},
    {"<", 4, [](const double* a, std::size_t) { return double(a[0] < a[1]); }},
    {"<=", 4, [](const double* a, std::size_t) { return double(a[0] <= a[1]); }},
    {">", 4, [](const double* a, std::size_t) { return double(a[0] > a[1]); }},
    {">=", 4, [](const double* a, std::size_t) { return double(a[0] >= a[1]); }},
    {"+", 5, [](const double* a, std::size_t) { return a[0] + a[1]; }},
    {"-", 5, [](const double* a, std::size_t) { return a[0] - a[1]; }},
    {"*", 6, [](const double* a, std::size_t) { return a[0] * a[1]; }},
    {"/", 6, [](const double* a, std::size_t) { return a[0] / a[1]; }},
};

template <class Entry, std::size_t Size>
const Entry* find(const Entry (&table)[Size], std::string_view text, std::string_view Entry::*key)
{
    const auto* found = std::find_if(std::begin(table), std::end(table),
                                     [&](const Entry& entry) { return entry.*key == text; });
    return found == std::end(table) ? nullptr : found;
}

} // namespace

const ExpressionFunction* findExpressionFunction(std::string_view name)
{
    return find(Functions, name, &ExpressionFunction::name);
}

const ExpressionConstant* findExpressionConstant(std::string_view name)
{
    return find(Constants, name, &ExpressionConstant::name);
}

const ExpressionOperator* findExpressionOperator(std::string_view sign)
{
    return find(Operators, sign, &ExpressionOperator::sign);
}

ExpressionCall negation()
{
    return [](const double* a, std::size_t) { return -a[0]; };
}

ExpressionCall logicalNot()
{
    return [](const double* a, std::size_t) { return double(a[0] == 0); };
}

ExpressionCall powerOf()
{
    return two<std::pow>;
}
