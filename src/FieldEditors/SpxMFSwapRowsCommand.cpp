// SPDX-License-Identifier: MIT
#include "SpxMFSwapRowsCommand.h"

#include <xsg/core/SoMField.h>

SpxMFSwapRowsCommand::SpxMFSwapRowsCommand(SoMField* field, int first, int second)
    : m_field(field)
    , m_first(first)
    , m_second(second)
{
}

void SpxMFSwapRowsCommand::execute()
{
    SbString first;
    SbString second;
    m_field->get1(m_first, first);
    m_field->get1(m_second, second);
    m_field->set1(m_first, second);
    m_field->set1(m_second, first);
}

void SpxMFSwapRowsCommand::undo()
{
    execute();
}

void SpxMFSwapRowsCommand::redo()
{
    execute();
}
