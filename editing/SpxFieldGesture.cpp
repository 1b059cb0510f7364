// SPDX-License-Identifier: MIT
#include "SpxFieldGesture.h"

#include <xsg/core/SoField.h>

void SpxFieldGesture::begin(SoField* field)
{
    keep();
    end();
    if (!field || SpxFieldEdit::isRefused())
        return;
    m_before = SpxFieldState(*field);
    m_command = std::make_unique<SpxSetFieldCommand>(field);
    m_field = field;
}

bool SpxFieldGesture::keep()
{
    if (!isActive() || !m_isWritten) {
        end();
        return false;
    }
    if (m_before.isSame(*m_field.get())) {
        giveBack();
        return false;
    }
    if (!m_command->canUndo())
        m_command.reset();
    const SpxFieldPointer field = m_field;
    std::unique_ptr<SpxSetFieldCommand> command = std::move(m_command);
    end();
    return SpxFieldEdit::apply(field.get(), std::move(command), [] {});
}

void SpxFieldGesture::giveBack()
{
    const SpxFieldState before = m_before;
    const SpxFieldPointer field = m_isWritten ? m_field : SpxFieldPointer();
    end();
    if (field)
        before.restore(*field.get());
}

void SpxFieldGesture::end()
{
    m_field = {};
    m_before = {};
    m_command.reset();
    m_isWritten = false;
}
