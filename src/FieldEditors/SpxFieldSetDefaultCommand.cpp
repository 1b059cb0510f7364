// SPDX-License-Identifier: MIT
#include "SpxFieldSetDefaultCommand.h"

#include <xsg/core/SoMField.h>

SpxFieldSetDefaultCommand::SpxFieldSetDefaultCommand(SoField* field, SoField* defaultField)
    : m_field(field)
    , m_isMultiple(field->isOfType(SoMField::getClassTypeId()))
{
    defaultField->get(m_defaultValue);
    field->get(m_previousValue);
}

void SpxFieldSetDefaultCommand::execute()
{
    m_field->set(m_defaultValue);
}

void SpxFieldSetDefaultCommand::undo()
{
    m_field->set(m_previousValue);
}

void SpxFieldSetDefaultCommand::redo()
{
    execute();
}
