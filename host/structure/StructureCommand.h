// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/SpxCommand.h>
#include <scopix/SpxEditedFields.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <vector>

namespace scopix
{

/// One change of a scene's structure that can be taken back.
struct StructureChange {
    enum class Kind { Insert, Remove, Replace, Rename };

    Kind kind;
    SoRef<SoNode> node; // the group whose children change, or what gets another name
    int index = 0;      // among the children
    SoRef<SoNode> before;
    SoRef<SoNode> after;
    SbName nameBefore;
    SbName nameAfter;
};

/// Changes lists of children and names, in order; undoing takes them back in the reverse order. Keeps every
/// node that it touches alive, so what it deletes is whole when it comes back. Where the scene is no longer
/// as it was left, nothing is changed and an exception says so.
class StructureCommand : public SpxCommand, public SpxEditedFields
{
public:
    /// The changes have to fit one after the other.
    explicit StructureCommand(std::vector<StructureChange> changes);
    ~StructureCommand() override;

    void execute() override { redo(); }
    void undo() override;
    void redo() override;
    std::vector<SoField*> editedFields() const override { return {}; }
    std::vector<SoFieldContainer*> editedContainers() const override;

private:
    std::vector<StructureChange> m_changes;
};

} // namespace scopix
