// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <xsg/values/SbString.h>

class SoMField;

/// Records that one value of a multi-value field was written, without making it reversible: made after the
/// write, it holds the new value twice (decisions.md: redo-only-command).
class SpxMFSetFieldValueCommand : public SpxCommand
{
public:
    SpxMFSetFieldValueCommand(SoMField* field, int index);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* m_field; // not owned; must outlive the command
    int m_index;
    SbString m_previousValue;
    SbString m_newValue;
};
