// SPDX-License-Identifier: MIT
#pragma once

#include "structure/StructureCommand.h"

#include <functional>
#include <memory>

namespace scopix
{

/// Writes fields, which the history then knows by itself how to take back, and changes the structure.
class ChangeCommand : public SpxCommand, public SpxEditedFields
{
public:
    /// False where nothing was written.
    using Write = std::function<bool()>;

    /// `write` is called once. `structure` may be null.
    ChangeCommand(std::vector<SoField*> fields, Write write,
                  std::unique_ptr<StructureCommand> structure = nullptr);

    void execute() override;
    void undo() override;
    void redo() override;
    std::vector<SoField*> editedFields() const override { return m_fields; }
    std::vector<SoFieldContainer*> editedContainers() const override;
    bool isWithoutEffect() const override { return !m_structure && !m_hasWritten; }

private:
    std::vector<SoField*> m_fields;
    Write m_write;
    bool m_hasWritten = false;
    std::unique_ptr<StructureCommand> m_structure;
};

/// The changes that make the children of a group these; appended so that all removals can come before all
/// insertions.
void addChildrenChange(SoGroup& group, const std::vector<SoNode*>& before, const std::vector<SoNode*>& after,
                       std::vector<StructureChange>& removals, std::vector<StructureChange>& insertions);

} // namespace scopix
