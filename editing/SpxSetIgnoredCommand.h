// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <scopix/editing/SpxEditingExport.h>
#include <scopix/editing/SpxFieldPointer.h>

/// Sets or clears the ignore flag of a field, without copying its value. Once the field's node is destroyed,
/// the command does nothing; it does not keep the node alive.
class SPX_EDITING_API SpxSetIgnoredCommand : public SpxCommand, public SpxEditedFields
{
public:
    SpxSetIgnoredCommand(SoField* field, bool ignored);

    void execute() override;
    void undo() override;
    void redo() override;
    std::vector<SoField*> editedFields() const override;

private:
    void apply(bool ignored) const;

    SpxFieldPointer m_field;
    bool m_ignored;
};
