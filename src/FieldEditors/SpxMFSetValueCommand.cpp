// SPDX-License-Identifier: MIT
#include "SpxMFSetValueCommand.h"

#include <xsg/core/SoMField.h>

#include <utility>

SpxMFSetValueCommand::SpxMFSetValueCommand(SoMField* field, int index, SbString& previous)
    : m_field(field)
    , m_index(index)
{
    if (previous.getLength() == 0)
        m_field->get1(m_index, m_previousValue);
    else
        std::swap(m_previousValue, previous);
}

void SpxMFSetValueCommand::execute()
{
    m_field->get1(m_index, m_newValue);
}

void SpxMFSetValueCommand::undo()
{
    m_field->set1(m_index, m_previousValue);
}

void SpxMFSetValueCommand::redo()
{
    m_field->set1(m_index, m_newValue);
}
