// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

/// Writes a text into a field, undoably. Keeps the field's node alive for as long as it can be undone.
class SetFieldCommand : public SpxCommand
{
public:
    SetFieldCommand(SoField* field, const SbString& text);

    void execute() override { redo(); }
    void undo() override { m_field->set(m_before); }
    void redo() override { m_field->set(m_after); }

private:
    SoField* m_field;
    SoRef<SoFieldContainer> m_owner;
    SbString m_before;
    SbString m_after;
};
