// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxExport.h>

#include <vector>

class SoField;
class SoFieldContainer;

/// What a command can say about itself beside what SpxCommand asks of it: derive the command from both. The
/// host finds it by dynamic_cast; without it, it watches which fields are written while the command runs, and
/// where none is, it goes by the selection.
///
///     class MoveLight : public SpxCommand, public SpxEditedFields { ... };
///
/// Saying it is worth it for a command that edits something other than what is selected, or that has written
/// it before it was handed over. The host asks after execute() and each undo and redo. GUI thread only.
class SPX_API SpxEditedFields
{
public:
    SpxEditedFields();
    SpxEditedFields(const SpxEditedFields&) = delete;
    SpxEditedFields& operator=(const SpxEditedFields&) = delete;
    virtual ~SpxEditedFields();

    /// The fields whose values or flags undo() and redo() write, without those that were destroyed. When the
    /// node of one is destroyed, the host takes the step out of the history.
    virtual std::vector<SoField*> editedFields() const = 0;
    /// What else has to be alive for undo() and redo(), such as groups whose children they move; none as it
    /// is here. Treated in the same way.
    virtual std::vector<SoFieldContainer*> editedContainers() const;
    /// True when everything is as it was before the command was made, so that the host may drop it. False as
    /// it is here.
    virtual bool isWithoutEffect() const;
};
