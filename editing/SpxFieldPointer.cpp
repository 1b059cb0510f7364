// SPDX-License-Identifier: MIT
#include "SpxFieldPointer.h"

#include "FieldLife.h"

#include <xsg/core/SoField.h>

SpxFieldPointer::SpxFieldPointer(SoField* field)
    : m_field(field)
{
    if (field)
        m_life = FieldLife::of(*field);
}

SoField* SpxFieldPointer::get() const
{
    return m_life && !m_life->isOver() ? m_field : nullptr;
}
