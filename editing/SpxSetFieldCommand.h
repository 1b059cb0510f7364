// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <scopix/editing/SpxFieldPointer.h>
#include <scopix/editing/SpxFieldState.h>

/// Records that a field of any type was written. Make it before the write and hand it over after it, as
/// SpxFieldEdit::write() does: the constructor keeps what undo restores, execute() keeps what redo restores,
/// and of a list only what differs. Once the field's node is destroyed, the command does nothing; it does not
/// keep the node alive.
class SPX_EDITING_API SpxSetFieldCommand : public SpxCommand, public SpxEditedFields
{
public:
    explicit SpxSetFieldCommand(SoField* field);

    /// False for a field whose type cannot be instantiated.
    bool canUndo() const { return m_before.isValid(); }

    void execute() override;
    void undo() override;
    void redo() override;
    std::vector<SoField*> editedFields() const override;
    bool isWithoutEffect() const override { return m_isWithoutEffect; }

private:
    void restore(const SpxFieldState& state) const;

    SpxFieldPointer m_field;
    SpxFieldState m_before;
    SpxFieldState m_after;
    bool m_isWithoutEffect = false;
};
