// SPDX-License-Identifier: MIT
#include "SpxConnectCommand.h"

#include <xsg/core/SoField.h>

namespace
{

void follow(SoField& field, const SpxFieldPointer& source)
{
    if (source)
        field.connectFrom(source.get());
    else
        field.disconnect();
}

} // namespace

SpxConnectCommand::SpxConnectCommand(SoField* field, SoField* source)
    : m_field(field)
    , m_source(source)
    , m_formerSource(field->getConnectedField())
    , m_before(*field)
{
}

void SpxConnectCommand::execute()
{
    if (m_field)
        follow(*m_field.get(), m_source);
}

void SpxConnectCommand::undo()
{
    if (!m_field)
        return;
    follow(*m_field.get(), m_formerSource);
    m_before.restore(*m_field.get());
}

void SpxConnectCommand::redo()
{
    execute();
}

std::vector<SoField*> SpxConnectCommand::editedFields() const
{
    SoField* field = m_field.get();
    return field ? std::vector<SoField*>{field} : std::vector<SoField*>();
}
