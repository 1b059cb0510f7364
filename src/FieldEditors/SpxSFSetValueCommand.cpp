// SPDX-License-Identifier: MIT
#include "SpxSFSetValueCommand.h"

#include <xsg/core/SoSField.h>

#include <utility>

SpxSFSetValueCommand::SpxSFSetValueCommand(SoSField* field, SbString& previous)
    : m_field(field)
{
    if (previous.getLength() == 0)
        m_field->get(m_previousValue);
    else
        std::swap(m_previousValue, previous);
}

void SpxSFSetValueCommand::execute()
{
    m_field->get(m_newValue);
}

void SpxSFSetValueCommand::undo()
{
    m_field->set(m_previousValue);
}

void SpxSFSetValueCommand::redo()
{
    m_field->set(m_newValue);
}
