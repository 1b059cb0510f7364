// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <xsg/values/SbString.h>

#include <vector>

class SoMField;

/// Removes values from a multi-value field and keeps them for undo.
class SpxMFDeleteRowsCommand : public SpxCommand
{
public:
    SpxMFDeleteRowsCommand(SoMField* field, int start, int count);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoMField* m_field; // not owned; must outlive the command
    std::vector<SbString> m_values;
    int m_start;
    int m_count;
};
