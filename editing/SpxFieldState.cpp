// SPDX-License-Identifier: MIT
#include "SpxFieldState.h"

#include <xsg/core/SoMField.h>

#include <algorithm>

namespace
{

std::shared_ptr<const SoField> partOf(const SoMField& list, int start, int count)
{
    std::shared_ptr<SoMField> part = list.makeSlice();
    return part && part->replaceValues(0, 0, list, start, count) ? part : nullptr;
}

std::shared_ptr<const SoField> copyOf(const SoField& field)
{
    const std::shared_ptr<SoTypedObject> object(field.getTypeId().createInstance());
    std::shared_ptr<SoField> copy = std::dynamic_pointer_cast<SoField>(object);
    return copy && copy->copyFrom(field) ? copy : nullptr;
}

} // namespace

SpxFieldState::SpxFieldState(const SoField& field)
    : m_value(copyOf(field))
    , m_isIgnored(field.isIgnored())
    , m_isDefault(field.isDefault())
{
}

bool SpxFieldState::isSame(const SoField& field) const
{
    return m_value && m_value->isSame(field);
}

void SpxFieldState::restore(SoField& field) const
{
    if (!m_value || !restoreValue(field))
        return;
    field.setDefault(m_isDefault);
    if (field.isIgnored() != m_isIgnored)
        field.setIgnored(m_isIgnored);
}

bool SpxFieldState::restoreValue(SoField& field) const
{
    if (m_start < 0)
        return field.copyFrom(*m_value);
    auto* list = dynamic_cast<SoMField*>(&field);
    const auto& part = static_cast<const SoMField&>(*m_value);
    return list && list->getNum() == m_otherTotal &&
           list->replaceValues(m_start, m_replaced, part, 0, part.getNum());
}

bool SpxFieldState::isSame(const SpxFieldState& other) const
{
    return m_value && other.m_value && m_value->isSame(*other.m_value) && m_isIgnored == other.m_isIgnored &&
           m_isDefault == other.m_isDefault;
}

void SpxFieldState::keepDifference(SpxFieldState& before, SpxFieldState& after)
{
    const auto* from = dynamic_cast<const SoMField*>(before.m_value.get());
    const auto* to = dynamic_cast<const SoMField*>(after.m_value.get());
    if (!from || !to)
        return;
    const int counts[] = {from->getNum(), to->getNum()};
    const int common = std::min(counts[0], counts[1]);
    int head = 0;
    while (head < common && from->isSameValue(head, *to, head))
        ++head;
    int tail = 0;
    while (tail < common - head && from->isSameValue(counts[0] - 1 - tail, *to, counts[1] - 1 - tail))
        ++tail;
    const int parts[] = {counts[0] - head - tail, counts[1] - head - tail};
    auto former = partOf(*from, head, parts[0]);
    auto latter = partOf(*to, head, parts[1]);
    if (!former || !latter)
        return;
    before.m_value = std::move(former);
    after.m_value = std::move(latter);
    before.m_start = after.m_start = head;
    before.m_replaced = parts[1];
    before.m_otherTotal = counts[1];
    after.m_replaced = parts[0];
    after.m_otherTotal = counts[0];
}
