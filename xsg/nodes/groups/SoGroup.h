// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/groups/ChangeLog.h>

/// Children first to last - 1.
struct SoChildRange {
    int first;
    int last;
};

class SoSeparator;

/// Holds other nodes in order. State that a child sets is seen by the children after it, and by what follows
/// the group.
class XSG_API SoGroup : public SoTyped<SoGroup, SoNode>
{
public:
    static constexpr const char* ClassName = "Group";

    int getNumChildren() const { return static_cast<int>(m_children.size()); }
    /// Null out of range.
    SoNode* getChild(int index) const;
    const std::vector<SoNode*>& getChildren() const { return m_children; }
    /// Index of the first place where the child stands, or -1.
    int findChild(const SoNode* child) const;

    /// A child that is null, or that would make the group its own descendant, is refused.
    bool addChild(SoNode* child) { return insertChild(child, getNumChildren()); }
    bool insertChild(SoNode* child, int index); // the index is clamped
    void removeChild(int index);                // out of range does nothing
    void removeAllChildren();
    bool replaceChild(int index, SoNode* child);

    SoGroup* asGroup() override { return this; }
    /// This group as one that remembers its box, or null; cheaper than a cast.
    virtual const SoSeparator* asSeparator() const { return nullptr; }
    /// Whether what the children set ends with the group.
    virtual bool isStateScope() const { return false; }
    /// Whether the choice below depends on where the camera is.
    virtual bool isViewDependent() const { return false; }
    /// The children that count at present; a group that chooses among its children narrows it.
    virtual SoChildRange getChosenChildren(const SoState& /*state*/) const { return {0, getNumChildren()}; }

    /// From this many children on, looking only at those that changed is worth remembering which they were.
    static constexpr int ManyChildren = 64;
    /// Remembers from now on.
    void rememberTouched() const;
    /// The places of the children that changed (they, or what is below them) since getChangeCount() was
    /// `since`, in order. False where that is not known, or where the group itself changed.
    bool findTouched(std::uint32_t since, std::vector<std::uint32_t>& places) const;

protected:
    ~SoGroup() override;

private:
    friend class SoNode;
    void adopt(SoNode* child);
    void release(SoNode* child);
    void disownAll(const std::vector<SoNode*>& children);
    void childrenChanged();
    bool wouldLoop(const SoNode* child) const;

    void noteTouched(const SoNode* child, std::uint64_t serial);
    void findPlaces(const SoNode* child, std::vector<std::uint32_t>& places) const;

    std::vector<SoNode*> m_children; // one reference each
    mutable std::unique_ptr<xsg::ChangeLog> m_touched;
};

extern template class SoTyped<SoGroup, SoNode>;
