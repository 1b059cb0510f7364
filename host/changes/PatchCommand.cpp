// SPDX-License-Identifier: MIT
#include "changes/PatchCommand.h"

#include "changes/ChangeCommand.h"
#include "structure/StructureWatch.h"

#include <algorithm>

namespace scopix
{

PatchCommand::PatchCommand(xsg::SceneChanges changes, SoNode* root, std::shared_ptr<xsg::PatchResult> result)
    : m_changes(std::move(changes))
    , m_root(root)
    , m_result(std::move(result))
{
}

PatchCommand::~PatchCommand() = default;

// Whatever shows the scene has its root.
void PatchCommand::refuseOtherRoot()
{
    using Kind = xsg::SceneChange::Kind;
    const auto isOfRoot = [](const xsg::SceneChange& change) {
        return change.kind == Kind::Replace && change.path.getSteps().empty();
    };
    if (std::none_of(m_changes.begin(), m_changes.end(), isOfRoot))
        return;
    m_changes.clear();
    m_result->misfits.emplace_back(
        SbSentence("The patch puts another node in the place of the root, which cannot be done "
                   "in an open scene; “scopix apply” does it in the file."));
}

void PatchCommand::execute()
{
    refuseOtherRoot();
    if (m_changes.empty())
        return;
    SoRef<SoNode> root = m_root;
    *m_result = xsg::applyChanges(m_changes, root, this);
    m_changes.clear();
    keepStructure();
    m_connections.connected();
}

void PatchCommand::keepStructure()
{
    std::vector<StructureChange> changes;
    std::vector<StructureChange> insertions;
    for (const Part& part : m_parts) {
        SoGroup& group = *part.group->asGroup();
        const std::vector<SoNode*>& after = group.getChildren();
        const auto front = after.begin() + part.start;
        const std::ptrdiff_t now = static_cast<std::ptrdiff_t>(after.size()) - part.countBefore +
                                   static_cast<std::ptrdiff_t>(part.before.size());
        std::vector<SoNode*> before(after.begin(), front);
        before.insert(before.end(), part.before.begin(), part.before.end());
        before.insert(before.end(), front + now, after.end());
        addChildrenChange(group, before, after, changes, insertions);
    }
    changes.insert(changes.end(), insertions.begin(), insertions.end());
    for (const auto& [node, name] : m_names) {
        if (node->getName() != name)
            changes.push_back({StructureChange::Kind::Rename, node, 0, {}, {}, name, node->getName()});
    }
    m_parts.clear();
    m_names.clear();
    if (!changes.empty())
        m_structure = std::make_unique<StructureCommand>(std::move(changes));
}

void PatchCommand::aboutToChangeChildren(SoGroup& group, int start, int removed)
{
    if (StructureWatch* watch = StructureWatch::getActive())
        watch->aboutToChangeChildren(group, start, removed);
    Part part{&group, start, {}, group.getNumChildren(), {}};
    for (int i = start; i < start + removed; ++i) {
        part.before.push_back(group.getChild(i));
        part.kept.emplace_back(group.getChild(i));
    }
    m_parts.push_back(std::move(part));
}

void PatchCommand::aboutToRename(SoNode& node)
{
    if (StructureWatch* watch = StructureWatch::getActive())
        watch->aboutToRename(node);
    m_names.emplace_back(&node, node.getName());
}

void PatchCommand::aboutToConnect(SoField& field)
{
    if (StructureWatch* watch = StructureWatch::getActive())
        watch->aboutToConnect(field);
    m_connections.aboutToConnect(field);
}

void PatchCommand::undo()
{
    m_connections.undo();
    if (m_structure)
        m_structure->undo();
}

void PatchCommand::redo()
{
    if (m_structure)
        m_structure->redo();
    m_connections.redo();
}

std::vector<SoFieldContainer*> PatchCommand::editedContainers() const
{
    return m_structure ? m_structure->editedContainers() : std::vector<SoFieldContainer*>();
}

bool PatchCommand::isWithoutEffect() const
{
    return m_connections.isEmpty() && !m_structure && m_result->applied == 0;
}

} // namespace scopix
