// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/core/SoFieldContainer.h>

class SoGroup;
class SoShape;
class SoState;

/// A part of the scene. A node may stand in several places; it keeps no reference to its parents, they keep
/// one to it.
class XSG_API SoNode : public SoTyped<SoNode, SoFieldContainer>
{
public:
    static constexpr const char* ClassName = "Node";

    void notify(const SoNotification& change) override;

    /// Grows whenever this node or anything below it changes; a cache made from it compares this number.
    std::uint32_t getChangeCount() const { return m_changeCount; }
    /// A number that no other node of this process has or had; a cache can keep it where a pointer could
    /// dangle.
    std::uint64_t getNodeId() const { return m_id; }

    /// Each place where the node stands, a group that holds it twice being listed twice.
    const std::vector<SoGroup*>& getParents() const { return m_parents; }

    /// Changes the state that the nodes after this one see. Most nodes that are neither group nor shape are
    /// nothing but their fields and this.
    virtual void apply(SoState& state) const;

    /// This node as what a traversal asks for, or null; cheaper than a cast.
    virtual SoGroup* asGroup() { return nullptr; }
    virtual SoShape* asShape() { return nullptr; }

protected:
    SoNode();
    ~SoNode() override;

private:
    friend class SoGroup;
    std::uint32_t m_changeCount = 0; // first, where it fills up the padding after the base
    std::vector<SoGroup*> m_parents;
    std::uint64_t m_lastSerial = 0;
    std::uint64_t m_id;
};

extern template class SoTyped<SoNode, SoFieldContainer>;
