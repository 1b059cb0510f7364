// SPDX-License-Identifier: MIT
#include "NodeWatch.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoNotification.h>
#include <xsg/nodes/groups/SoGroup.h>

#include <algorithm>
#include <functional>
#include <utility>

namespace scopix::live
{

namespace
{

std::size_t joined(std::size_t hash, const void* next)
{
    return (hash ^ std::hash<const void*>()(next)) * 0x9E3779B97F4A7C15U;
}

} // namespace

NodeWatch::NodeWatch(SoNode& node, bool values, NodeWatchOwner& owner)
    : m_owner(owner)
    , m_node(&node)
    , m_id(node.getNodeId())
    , m_values(values)
    , m_structure(structure())
{
    node.addListener(this);
}

NodeWatch::~NodeWatch()
{
    if (m_node)
        m_node->removeListener(this);
}

void NodeWatch::changed(const SoNotification& change)
{
    if (!change.field) {
        m_mayDiffer = true;
        touch();
    } else if (m_values && change.field->getContainer() == m_node) {
        const SbName name = change.field->getName();
        if (std::find(m_fields.begin(), m_fields.end(), name) == m_fields.end())
            m_fields.push_back(name);
        touch();
    }
}

void NodeWatch::subjectDestroyed()
{
    std::exchange(m_node, nullptr)->removeListener(this);
    m_owner.watchedNodeEnded(*this);
}

void NodeWatch::touch()
{
    if (!std::exchange(m_isTouched, true))
        m_owner.watchTouched(*this);
}

std::vector<SbName> NodeWatch::takeFields()
{
    m_isTouched = false;
    return std::exchange(m_fields, {});
}

bool NodeWatch::takeStructureChange()
{
    m_isTouched = false;
    if (!m_node || !std::exchange(m_mayDiffer, false))
        return false;
    const std::size_t former = std::exchange(m_structure, structure());
    return former != m_structure;
}

std::size_t NodeWatch::structure() const
{
    std::size_t hash = joined(0, m_node->getName().getString());
    if (const SoGroup* group = m_node->asGroup())
        for (const SoNode* child : group->getChildren())
            hash = joined(joined(hash, child), child->getName().getString());
    return hash;
}

} // namespace scopix::live
