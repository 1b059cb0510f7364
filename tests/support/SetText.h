// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <xsg/core/SoField.h>

/// An edit as an extension makes one: it gives a field its new text at once, and then stands for it in the
/// history.
class SetText : public SpxCommand
{
public:
    SetText(SoField* field, const char* text)
        : m_field(field)
        , m_after(text)
    {
        field->get(m_before);
        field->set(m_after);
    }
    void execute() override { m_field->set(m_after); }
    void undo() override { m_field->set(m_before); }
    void redo() override { execute(); }

private:
    SoField* m_field;
    SbString m_before;
    SbString m_after;
};
