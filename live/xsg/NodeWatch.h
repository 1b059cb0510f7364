// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoChangeListener.h>
#include <xsg/nodes/base/SoNode.h>

#include <vector>

namespace scopix::live
{

class NodeWatch;

/// Hears of a watch the first time that something changes since its changes were taken, and when its node
/// ends.
class NodeWatchOwner
{
public:
    virtual void watchTouched(NodeWatch& watch) = 0;
    virtual void watchedNodeEnded(NodeWatch& watch) = 0;

protected:
    ~NodeWatchOwner() = default;
};

/// Notes what changes of one node: which of its fields, and whether its children or their names. Unlike a
/// sensor it needs no queue, which the program may process at other times. In the scene's thread.
class NodeWatch final : private SoChangeListener
{
public:
    NodeWatch(SoNode& node, bool values, NodeWatchOwner& owner);
    ~NodeWatch();
    NodeWatch(const NodeWatch&) = delete;
    NodeWatch& operator=(const NodeWatch&) = delete;

    std::uint64_t nodeId() const noexcept { return m_id; }
    void setValues(bool values) noexcept { m_values = values; }

    std::vector<SbName> takeFields();
    /// Whether children, or names of the node or of its children, differ from when it was asked last.
    bool takeStructureChange();

private:
    void changed(const SoNotification& change) override;
    void subjectDestroyed() override;
    void touch();
    std::size_t structure() const;

    NodeWatchOwner& m_owner;
    SoNode* m_node; // null once it has ended
    std::uint64_t m_id;
    bool m_values;
    bool m_isTouched = false;
    bool m_mayDiffer = false; // something in the structure of the node or below it
    std::vector<SbName> m_fields;
    std::size_t m_structure;
};

} // namespace scopix::live
