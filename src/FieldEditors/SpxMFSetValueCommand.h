// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <xsg/values/SbString.h>

class SoMField;

/// Records that one value of a multi-value field was written. Made before the write, handed over
/// after it: execute() only reads the value that the editor wrote.
class SpxMFSetValueCommand : public SpxCommand
{
public:
    /// `previous` is the text from before the edit, which the editor saved; it is taken over and made null,
    /// so that one command consumes it. A null or empty one stands for what the field gives now.
    SpxMFSetValueCommand(SoMField* field, int index, SbString& previous);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* m_field; // not owned; must outlive the command
    int m_index;
    SbString m_previousValue;
    SbString m_newValue;
};
