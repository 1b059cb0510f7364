// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/BoundingBoxTree.h>
#include <xsg/actions/ChangeLog.h>
#include <xsg/actions/ChildPlaces.h>
#include <xsg/actions/ChildrenLog.h>
#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/groups/SoGroupExtension.h>
#include <xsg/values/SbBox.h>

namespace xsg
{

class LargeGroupCache;

/// What shapes below a group take from before it, as far as it matters to their boxes.
struct BoxInputs {
    std::uint64_t pointsId = 0;
    std::uint32_t pointsCount = 0;
    bool isVisible = true;

    static BoxInputs of(const SoState& state);
    friend bool operator==(const BoxInputs& a, const BoxInputs& b)
    {
        return a.pointsId == b.pointsId && a.pointsCount == b.pointsCount && a.isVisible == b.isVisible;
    }
};

/// What boxes, picks and the renderer remember about a group: the box around what is below it, in the
/// coordinates at the group. It holds as long as neither something below nor the inputs change.
///
/// Lives in the group's extension slot, which this level alone uses, and so lives as long as the group does.
class GroupCache : public SoGroupExtension
{
public:
    /// From this many children on, looking only at those that changed is worth remembering which they were.
    static constexpr int ManyChildren = 64;

    /// Null where nothing has been remembered yet.
    static GroupCache* find(SoGroup& group) { return static_cast<GroupCache*>(group.getExtension()); }
    /// The cache of the kind that suits the number of children; made, or replaced by an empty one, where
    /// there was another kind or none.
    static GroupCache& of(SoGroup& group);

    void noteChange(const SoNode* /*child*/, std::uint32_t /*changeCount*/) override {}
    virtual LargeGroupCache* asLarge() { return nullptr; }

    const SbBox3f& getBox() const { return m_box; }
    std::uint32_t getChangeCount() const { return m_changeCount; }
    /// Whether the box is the one of the group as it is now.
    bool hasBox(const SoGroup& group, const BoxInputs& inputs) const
    {
        return wasMadeWith(inputs) && m_changeCount == group.getChangeCount();
    }
    /// Whether it was made with these inputs, at getChangeCount(); the group may have changed since.
    bool wasMadeWith(const BoxInputs& inputs) const { return m_isValid && m_inputs == inputs; }
    void setBox(const SbBox3f& box, const SoGroup& group, const BoxInputs& inputs);
    void dropBox() { m_isValid = false; }

private:
    SbBox3f m_box;
    BoxInputs m_inputs;
    std::uint32_t m_changeCount = 0;
    bool m_isValid = false;
};

/// The same for a group with many children: also which of them changed lately, and the box of each.
class LargeGroupCache final : public GroupCache
{
public:
    /// Knows of everything after the group's change count `now`.
    explicit LargeGroupCache(std::uint32_t now)
        : m_log(now)
        , m_childrenLog(now)
    {
    }
    /// Null where the group has no such cache.
    static LargeGroupCache* find(SoGroup& group);

    void noteChange(const SoNode* child, std::uint32_t changeCount) override;
    void noteChildren(const SoChildrenChange& change) override;
    LargeGroupCache* asLarge() override { return this; }

    /// Appends the places of the children that changed (they, or what is below them) since the group's change
    /// count was `since`, in order. False where that is not known, or where the group itself changed.
    bool findChanged(const SoGroup& group, std::uint32_t since, std::vector<std::uint32_t>& places);
    /// The same for who remembers the list of children as it was then: `changes`, one after the other, bring
    /// it to the present one, and the group itself may have changed.
    bool findChanged(const SoGroup& group, std::uint32_t since, std::vector<SoChildrenChange>& changes,
                     std::vector<std::uint32_t>& places);

    /// Of the children, as of the box.
    struct ChildBoxes {
        std::vector<SbBox3f> boxes;        // in the coordinates at the group; empty for the others:
        std::vector<std::uint32_t> others; // places of children that are no separators
        BoundingBoxTree tree;              // of `boxes`
    };
    ChildBoxes& childBoxes() { return m_childBoxes; }

private:
    void findPlaces(const SoGroup& group, const std::vector<const SoNode*>& changed,
                    std::vector<std::uint32_t>& places);

    ChangeLog m_log;
    ChildrenLog m_childrenLog;
    ChildPlaces m_places;
    ChildBoxes m_childBoxes;
};

/// Adds the second row of ascending places to the first, which stays ascending.
void mergePlaces(std::vector<std::uint32_t>& places, const std::vector<std::uint32_t>& more);

} // namespace xsg
