// SPDX-License-Identifier: MIT
#include "SpxMFSetFieldValueCommand.h"

#include <xsg/core/SoMField.h>

SpxMFSetFieldValueCommand::SpxMFSetFieldValueCommand(SoMField* field, int index)
    : m_field(field)
    , m_index(index)
{
    m_field->get1(m_index, m_previousValue);
    m_field->get1(m_index, m_newValue);
}

void SpxMFSetFieldValueCommand::execute()
{
    // The value stands in the field already.
}

void SpxMFSetFieldValueCommand::undo()
{
    m_field->set1(m_index, m_previousValue);
}

void SpxMFSetFieldValueCommand::redo()
{
    m_field->set1(m_index, m_newValue);
}
