// SPDX-License-Identifier: MIT
#include <xsg/nodes/base/SoNode.h>

#include <xsg/core/Context.h>
#include <xsg/counters/LibraryCounters.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoNode, SoFieldContainer>;

SoNode::SoNode()
    : m_id(++xsg::Context::get().lastNodeId)
{
    xsg::feeds.nodesAlive.add();
}

SoNode::~SoNode()
{
    xsg::feeds.nodesAlive.add(-1);
}

void SoNode::apply(SoState& /*state*/) const {}

void SoNode::notify(const SoNotification& change)
{
    // A walk instead of a recursion, since a scene may be nested deeper than the stack is. Only branching
    // needs memory; the serial lets a shared node pass each change on once.
    std::vector<SoNode*> branches;
    SoNode* node = this;
    std::int64_t notified = 0;
    if (SoGroup* group = asGroup())
        group->reportChange(nullptr, change.serial);
    while (node) {
        SoNode* next = nullptr;
        if (node->m_lastSerial != change.serial) {
            node->m_lastSerial = change.serial;
            ++node->m_changeCount;
            ++notified;
            if (node->hasSensors())
                node->SoFieldContainer::notify(change);
            const auto& parents = node->m_parents;
            for (SoGroup* parent : parents)
                parent->reportChange(node, change.serial);
            if (!parents.empty()) {
                next = parents.front();
                branches.insert(branches.end(), parents.begin() + 1, parents.end());
            }
        }
        if (!next && !branches.empty()) {
            next = branches.back();
            branches.pop_back();
        }
        node = next;
    }
    xsg::feeds.notifications.add(notified);
}
