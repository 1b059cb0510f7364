// SPDX-License-Identifier: MIT
#include "SpxMFDeleteRowsCommand.h"

#include <xsg/core/SoMField.h>

#include <algorithm>

SpxMFDeleteRowsCommand::SpxMFDeleteRowsCommand(SoMField* field, int start, int count)
    : m_field(field)
    , m_values(std::size_t(std::max(count, 0)))
    , m_start(start)
    , m_count(count)
{
    for (SbString& value : m_values)
        m_field->get1(start++, value);
}

void SpxMFDeleteRowsCommand::execute()
{
    m_field->deleteValues(m_start, m_count);
}

void SpxMFDeleteRowsCommand::undo()
{
    m_field->insertSpace(m_start, m_count);
    int index = m_start;
    for (const SbString& value : m_values)
        m_field->set1(index++, value);
}

void SpxMFDeleteRowsCommand::redo()
{
    execute();
}
