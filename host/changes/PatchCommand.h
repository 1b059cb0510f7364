// SPDX-License-Identifier: MIT
#pragma once

#include "changes/FieldConnections.h"
#include "structure/StructureCommand.h"

#include <scopix/SpxEditedConnections.h>
#include <xsg/changes/PatchApplication.h>

#include <memory>

namespace scopix
{

/// Applies a patch to an open scene, as far as it fits. The history knows by itself how to take values back;
/// this takes back structure, names and connections. The root stays.
class PatchCommand : public SpxCommand,
                     public SpxEditedFields,
                     public SpxEditedConnections,
                     private xsg::PatchWatch
{
public:
    /// `result` is filled by execute().
    PatchCommand(xsg::SceneChanges changes, SoNode* root, std::shared_ptr<xsg::PatchResult> result);
    ~PatchCommand() override;

    void execute() override;
    void undo() override;
    void redo() override;
    std::vector<SoField*> editedFields() const override { return m_connections.fields(); }
    std::vector<SoField*> connectedFields() const override { return m_connections.fields(); }
    std::vector<SoFieldContainer*> editedContainers() const override;
    bool isWithoutEffect() const override;

private:
    struct Part {
        SoRef<SoNode> group;
        int start = 0;
        std::vector<SoNode*> before;
        int countBefore = 0;
        std::vector<SoRef<SoNode>> kept;
    };

    void aboutToChangeChildren(SoGroup& group, int start, int removed) override;
    void aboutToRename(SoNode& node) override;
    void aboutToConnect(SoField& field) override;
    void keepStructure();
    void refuseOtherRoot();

    xsg::SceneChanges m_changes; // until it is executed
    SoRef<SoNode> m_root;
    std::shared_ptr<xsg::PatchResult> m_result;
    std::vector<Part> m_parts;
    std::vector<std::pair<SoRef<SoNode>, SbName>> m_names;
    FieldConnections m_connections;
    std::unique_ptr<StructureCommand> m_structure;
};

} // namespace scopix
