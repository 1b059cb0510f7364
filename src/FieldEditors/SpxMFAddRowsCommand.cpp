// SPDX-License-Identifier: MIT
#include "SpxMFAddRowsCommand.h"

#include <xsg/core/SoMField.h>

SpxMFAddRowsCommand::SpxMFAddRowsCommand(SoMField* field, int start, int count)
    : m_field(field)
    , m_start(start)
    , m_count(count)
{
}

void SpxMFAddRowsCommand::execute()
{
    m_field->insertSpace(m_start, m_count);
    // An empty quoted text; types that cannot read it keep what the insertion left there (decisions.md:
    // add-rows-text).
    const SbString initial("\"\"");
    for (int i = 0; i < m_count; ++i)
        m_field->set1(m_start + i, initial);
    m_field->valueChanged(0, m_field->getNum(), true);
}

void SpxMFAddRowsCommand::undo()
{
    m_field->deleteValues(m_start, m_count);
}

void SpxMFAddRowsCommand::redo()
{
    execute();
}
