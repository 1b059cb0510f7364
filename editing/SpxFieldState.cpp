// SPDX-License-Identifier: MIT
#include "SpxFieldState.h"

#include <xsg/core/SoField.h>

namespace
{

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
    if (!m_value || !field.copyFrom(*m_value))
        return;
    field.setDefault(m_isDefault);
    if (field.isIgnored() != m_isIgnored)
        field.setIgnored(m_isIgnored);
}
