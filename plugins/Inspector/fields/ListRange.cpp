// SPDX-License-Identifier: MIT
#include "fields/ListRange.h"

#include <xsg/fields/SoMFDouble.h>
#include <xsg/fields/SoMFFloat.h>
#include <xsg/fields/SoMFInt32.h>
#include <xsg/fields/SoMFShort.h>
#include <xsg/fields/SoMFUInt32.h>
#include <xsg/fields/SoMFUShort.h>
#include <xsg/fields/SoMFVec2f.h>
#include <xsg/fields/SoMFVec3f.h>
#include <xsg/fields/SoMFVec4f.h>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int MostValues = 100000;

template <class Number>
ListRange rangeOf(const Number* numbers, int count)
{
    const auto ends = std::minmax_element(numbers, numbers + count);
    return {double(*ends.first), double(*ends.second)};
}

template <class Field>
bool take(const SoField& field, std::optional<ListRange>& range)
{
    const auto* list = dynamic_cast<const Field*>(&field);
    if (!list || list->getNum() == 0 || list->getNum() > MostValues)
        return false;
    if constexpr (std::is_arithmetic_v<typename Field::Value>)
        range = rangeOf(list->getValues(), list->getNum());
    else
        range = rangeOf(list->getValues()->getValue(), list->getNum() * Field::Value::Size);
    return true;
}

template <class... Fields>
std::optional<ListRange> firstOf(const SoField& field)
{
    std::optional<ListRange> range;
    (void)(take<Fields>(field, range) || ...);
    return range;
}

} // namespace

std::optional<ListRange> rangeOf(const SoField& list)
{
    return firstOf<SoMFFloat, SoMFDouble, SoMFInt32, SoMFUInt32, SoMFShort, SoMFUShort, SoMFVec2f, SoMFVec3f,
                   SoMFVec4f>(list);
}

} // namespace inspector
