// SPDX-License-Identifier: MIT
#pragma once

#include "changes/FieldConnections.h"
#include "structure/StructureCommand.h"

#include <scopix/SpxEditedConnections.h>

#include <functional>
#include <memory>

namespace scopix
{

/// Writes fields, which the history then knows by itself how to take back, and changes the structure and
/// what fields follow.
class ChangeCommand : public SpxCommand, public SpxEditedFields, public SpxEditedConnections
{
public:
    /// False where nothing was written.
    using Write = std::function<bool()>;

    /// `write` is called before the connections are made, and once more after, so that values stand that
    /// differ from those of their sources. `structure` may be null.
    ChangeCommand(std::vector<SoField*> fields, Write write,
                  std::unique_ptr<StructureCommand> structure = nullptr, FieldConnections connections = {});

    void execute() override;
    void undo() override;
    void redo() override;
    std::vector<SoField*> editedFields() const override { return m_fields; }
    std::vector<SoField*> connectedFields() const override { return m_connections.fields(); }
    std::vector<SoFieldContainer*> editedContainers() const override;
    bool isWithoutEffect() const override { return !m_structure && m_connections.isEmpty() && !m_hasWritten; }

private:
    std::vector<SoField*> m_fields;
    Write m_write;
    bool m_hasWritten = false;
    std::unique_ptr<StructureCommand> m_structure;
    FieldConnections m_connections;
};

/// The changes that make the children of a group these; appended so that all removals can come before all
/// insertions.
void addChildrenChange(SoGroup& group, const std::vector<SoNode*>& before, const std::vector<SoNode*>& after,
                       std::vector<StructureChange>& removals, std::vector<StructureChange>& insertions);

} // namespace scopix
