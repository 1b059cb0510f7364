// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoTraversal.h>
#include <xsg/render/RenderItemFiller.h>

namespace xsg
{

/// Brings a render list up to date after changes of fields: makes only those items again that a change
/// affects, on a walk that skips every isolating group without a change in it, and that is compared with the
/// record of the walk that built the list. Everything else (children, choices, lights, textures) needs a new
/// list.
class RenderListPatcher : private SoTraversal
{
public:
    RenderListPatcher(RenderList& list, GeometryStore& geometry, TextureStore& textures);
    /// False where the list has to be built again; it is no longer usable then.
    bool patch(SoNode* root, const RenderView& view);
    using SoTraversal::getNumVisited;
    using SoTraversal::setHiding;

private:
    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;
    void visitProperty(SoNode* node) override;

    /// A group that is open; without `children` all of its children are visited.
    struct OpenGroup {
        const WalkRecord::Children* children;
        std::uint32_t place; // in the record
    };

    void begin(const RenderView& view);
    bool follow(const SoNode* node);
    void giveUp();
    void planVisits(SoGroup& group, std::uint32_t since);
    void patchItem(std::uint32_t index, const SoShape& shape, const SbMatrix& toWorld);
    void patchBoxes();

    RenderList& m_list;
    GeometryStore& m_geometry;
    RenderItemFiller m_filler;
    const SoCamera* m_wantedCamera = nullptr;
    std::vector<OpenGroup> m_openGroups;
    OpenGroup m_nextGroup{};
    std::vector<std::uint32_t> m_plan; // places of the children to visit in the next group
    bool m_gaveUp = false;
    bool m_reaches = false;            // a change before this place affects what is visited
    std::vector<char> m_reachesBefore; // of the isolating groups that are open
    bool m_needsSorting = false;
    std::size_t m_firstPatched = 0; // among the list's changed items
    std::size_t m_cursor = 0;       // the place in the record
};

} // namespace xsg
