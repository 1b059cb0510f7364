// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>

class SoMField;

/// Exchanges two values of a multi-value field.
class SpxMFSwapRowsCommand : public SpxCommand
{
public:
    SpxMFSwapRowsCommand(SoMField* field, int first, int second);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* m_field; // not owned; must outlive the command
    int m_first;
    int m_second;
};
