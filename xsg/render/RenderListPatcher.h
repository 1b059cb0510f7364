// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/GroupCache.h>
#include <xsg/render/RenderListBuilder.h>

namespace xsg
{

/// Brings a render list up to date after changes: makes only those items again that a change affects, on a
/// walk that skips every isolating group without a change in it, and that is compared with the record of the
/// walk before. What has come below a group is built and recorded on the way, what has gone is taken out.
/// Some things need a new list: cameras of the scene and an application's own drawing that come or go, and a
/// scene that repeats more than a walk follows.
class XSG_API RenderListPatcher : private RenderListBuilder
{
public:
    using RenderListBuilder::RenderListBuilder;
    /// False where the list has to be built again; it is no longer usable then.
    bool patch(SoNode* root, const RenderView& view);
    using RenderListBuilder::setColors;
    using SoTraversal::getNumVisited;
    using SoTraversal::setHiding;

private:
    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;
    void visitProperty(SoNode* node) override;

    /// What the record has for the node that the walk has come to.
    enum class Met { Known, New, GaveUp };

    /// What this adds to what the builder knows of an open group.
    struct Level {
        WalkRecord::Children* children = nullptr; // those of a planned visit; else all are visited
        bool isNew = false;                       // the group and all below it are built
        bool reachesAfter = false;                // of the group around it, where it is put back
    };

    void begin(const RenderView& view);
    void finish();
    void giveUp();
    Met meet(const SoNode* node);
    Met meetPlanned(const SoNode* node);
    void keepNew();
    void reach();
    std::uint32_t findItemBefore() const;
    void planVisits(SoGroup& group, std::uint32_t since);
    bool follow(std::uint32_t entry, WalkRecord::Children& children,
                const std::vector<SoChildrenChange>& changes);
    void removeNext(std::uint32_t parent, std::uint32_t previous);
    void removeItems(const WalkRecord::Entry& entry);
    void noteNew(const WalkRecord::Entry& entry);
    void patchItem(std::uint32_t index, const SoShape& shape, const SbMatrix& toWorld);
    void release(const RenderItem& item);
    void patchBoxes();

    std::vector<Level> m_levels;
    Level m_nextLevel;
    std::uint32_t m_nextEntry = None;
    bool m_ownFieldsChanged = false;   // of the group that is being opened
    std::vector<std::uint32_t> m_plan; // places of the children to visit in the next group
    bool m_gaveUp = false;
    bool m_reaches = false; // a change before this place affects what is visited
    bool m_needsSorting = false;
    bool m_isRestructured = false;  // nodes or items have come or gone
    int m_skipped = 0;              // entries that were looked at in vain
    std::size_t m_firstPatched = 0; // among the list's changed items
};

} // namespace xsg
