// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedConnections.h>
#include <scopix/SpxEditedFields.h>
#include <scopix/editing/SpxFieldPointer.h>
#include <scopix/editing/SpxFieldState.h>

/// Lets a field follow another one, or none (null); undo restores what it followed before, and its value.
/// Once one of the nodes is destroyed, the command does nothing that needs it; it keeps none alive.
class SPX_EDITING_API SpxConnectCommand : public SpxCommand,
                                          public SpxEditedFields,
                                          public SpxEditedConnections
{
public:
    SpxConnectCommand(SoField* field, SoField* source);

    void execute() override;
    void undo() override;
    void redo() override;
    std::vector<SoField*> editedFields() const override;
    std::vector<SoField*> connectedFields() const override { return editedFields(); }

private:
    SpxFieldPointer m_field;
    SpxFieldPointer m_source;
    SpxFieldPointer m_formerSource;
    SpxFieldState m_before;
};
