// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>

class SoMField;

/// Opens new values in a multi-value field.
class SpxMFAddRowsCommand : public SpxCommand
{
public:
    SpxMFAddRowsCommand(SoMField* field, int start, int count);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* m_field; // not owned; must outlive the command
    int m_start;
    int m_count;
};
