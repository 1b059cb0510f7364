// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/groups/SoGroupExtension.h>

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
    /// This group as a separator, or null; cheaper than a cast.
    virtual const SoSeparator* asSeparator() const { return nullptr; }
    /// Whether what the children set ends with the group.
    virtual bool isStateScope() const { return false; }
    /// Whether the choice below depends on where the camera is.
    virtual bool isViewDependent() const { return false; }
    /// The children that count at present; a group that chooses among its children narrows it.
    virtual SoChildRange getChosenChildren(const SoState& /*state*/) const { return {0, getNumChildren()}; }

    /// Grows whenever the children of any group of this process change.
    static std::uint64_t getStructureCount();

    /// A place for what the level above the nodes remembers about the group, for that level alone; null at
    /// first.
    SoGroupExtension* getExtension() { return m_extension.get(); }
    /// Destroys the one before.
    void setExtension(std::unique_ptr<SoGroupExtension> extension) { m_extension = std::move(extension); }

protected:
    ~SoGroup() override;

private:
    friend class SoNode;
    void adopt(SoNode* child);
    void release(SoNode* child);
    void disownAll(const std::vector<SoNode*>& children);
    /// At `place`, so many children are gone and so many have come.
    void childrenChanged(std::size_t place, std::size_t removed, std::size_t inserted);
    bool wouldLoop(const SoNode* child) const;

    /// `child`: null for the group itself.
    void reportChange(const SoNode* child, std::uint64_t serial);

    std::vector<SoNode*> m_children; // one reference each
    std::unique_ptr<SoGroupExtension> m_extension;
};

extern template class SoTyped<SoGroup, SoNode>;
