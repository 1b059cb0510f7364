// SPDX-License-Identifier: MIT
#include "SpxSetFieldCommand.h"

#include <xsg/core/SoField.h>

SpxSetFieldCommand::SpxSetFieldCommand(SoField* field)
    : m_field(field)
    , m_before(*field)
{
}

void SpxSetFieldCommand::execute()
{
    if (const SoField* field = m_field.get())
        m_after = SpxFieldState(*field);
}

void SpxSetFieldCommand::undo()
{
    restore(m_before);
}

void SpxSetFieldCommand::redo()
{
    restore(m_after);
}

void SpxSetFieldCommand::restore(const SpxFieldState& state) const
{
    if (SoField* field = m_field.get())
        state.restore(*field);
}
