// Sets or clears a field's ignore flag.
#pragma once

#include <scopix/SpxCommand.h>

class SoField;

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
