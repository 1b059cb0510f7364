// SPDX-License-Identifier: MIT
#include "SetFieldCommand.h"

SetFieldCommand::SetFieldCommand(SoField* field, const SbString& text)
    : m_field(field)
    , m_owner(field->getContainer())
    , m_after(text)
{
    field->get(m_before);
}
