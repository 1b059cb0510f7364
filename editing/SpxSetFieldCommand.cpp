// SPDX-License-Identifier: MIT
#include "SpxSetFieldCommand.h"

#include <scopix/SpxSceneServices.h>

#include <xsg/core/SoField.h>

SpxSetFieldCommand::SpxSetFieldCommand(SoField* field)
    : m_field(field)
    , m_before(*field)
{
    if (SpxSceneServices* scene = SpxSceneServices::getInstance())
        scene->aboutToEdit(*field);
}

void SpxSetFieldCommand::execute()
{
    const SoField* field = m_field.get();
    if (!field)
        return;
    m_after = SpxFieldState(*field);
    m_isWithoutEffect = m_after.isSame(m_before);
    SpxFieldState::keepDifference(m_before, m_after);
}

std::vector<SoField*> SpxSetFieldCommand::editedFields() const
{
    SoField* field = m_field.get();
    return field ? std::vector<SoField*>{field} : std::vector<SoField*>{};
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
