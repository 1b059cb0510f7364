// SPDX-License-Identifier: MIT
#include "SpxSetIgnoredCommand.h"

#include <xsg/core/SoField.h>

SpxSetIgnoredCommand::SpxSetIgnoredCommand(SoField* field, bool ignored)
    : m_field(field)
    , m_ignored(ignored)
{
}

void SpxSetIgnoredCommand::execute()
{
    apply(m_ignored);
}

void SpxSetIgnoredCommand::undo()
{
    apply(!m_ignored);
}

void SpxSetIgnoredCommand::redo()
{
    execute();
}

void SpxSetIgnoredCommand::apply(bool ignored) const
{
    SoField* field = m_field.get();
    if (field && field->isIgnored() != ignored)
        field->setIgnored(ignored);
}

std::vector<SoField*> SpxSetIgnoredCommand::editedFields() const
{
    SoField* field = m_field.get();
    return field ? std::vector<SoField*>{field} : std::vector<SoField*>{};
}
