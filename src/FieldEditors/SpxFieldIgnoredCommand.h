// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>

class SoField;

/// Sets or clears a field's ignore flag.
class SpxFieldIgnoredCommand : public SpxCommand
{
public:
    SpxFieldIgnoredCommand(SoField* field, bool ignored);

    void execute() override;
    void undo() override;
    void redo() override;

private:
    SoField* m_field; // not owned; must outlive the command
    bool m_ignored;
};
