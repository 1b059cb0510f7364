// SPDX-License-Identifier: MIT
#include "SpxFieldIgnoredCommand.h"

#include <xsg/core/SoField.h>

SpxFieldIgnoredCommand::SpxFieldIgnoredCommand(SoField* field, bool ignored)
    : m_field(field)
    , m_ignored(ignored)
{
}

void SpxFieldIgnoredCommand::execute()
{
    m_field->setIgnored(m_ignored);
}

void SpxFieldIgnoredCommand::undo()
{
    m_field->setIgnored(!m_ignored);
}

void SpxFieldIgnoredCommand::redo()
{
    execute();
}
