// SPDX-License-Identifier: MIT
#include "changes/ChangeCommand.h"

#include <algorithm>

namespace scopix
{

ChangeCommand::ChangeCommand(std::vector<SoField*> fields, Write write,
                             std::unique_ptr<StructureCommand> structure, FieldConnections connections)
    : m_fields(std::move(fields))
    , m_write(std::move(write))
    , m_structure(std::move(structure))
    , m_connections(std::move(connections))
{
}

void ChangeCommand::execute()
{
    if (m_structure)
        m_structure->redo();
    m_connections.announce();
    const Write write = std::exchange(m_write, {});
    m_hasWritten = write && write();
    if (m_connections.isEmpty())
        return;
    m_connections.redo();
    m_hasWritten = (write && write()) || m_hasWritten;
}

void ChangeCommand::undo()
{
    m_connections.undo();
    if (m_structure)
        m_structure->undo();
}

void ChangeCommand::redo()
{
    if (m_structure)
        m_structure->redo();
    m_connections.redo();
}

std::vector<SoFieldContainer*> ChangeCommand::editedContainers() const
{
    return m_structure ? m_structure->editedContainers() : std::vector<SoFieldContainer*>();
}

void addChildrenChange(SoGroup& group, const std::vector<SoNode*>& before, const std::vector<SoNode*>& after,
                       std::vector<StructureChange>& removals, std::vector<StructureChange>& insertions)
{
    const auto front = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const std::ptrdiff_t most = std::min(before.end() - front.first, after.end() - front.second);
    const auto back =
        std::mismatch(before.rbegin(), before.rbegin() + most, after.rbegin(), after.rbegin() + most);
    const auto start = static_cast<int>(front.first - before.begin());
    for (auto at = back.first; at != std::make_reverse_iterator(front.first); ++at) {
        const auto index = static_cast<int>(before.rend() - at) - 1;
        removals.push_back({StructureChange::Kind::Remove, &group, index, *at, {}, {}, {}});
    }
    int index = start;
    for (auto at = front.second; at != back.second.base(); ++at)
        insertions.push_back({StructureChange::Kind::Insert, &group, index++, {}, *at, {}, {}});
}

} // namespace scopix
