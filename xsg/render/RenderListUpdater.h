// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/RenderListBuilder.h>
#include <xsg/render/RenderListPatcher.h>

namespace xsg
{

/// Owns the render list of a scene and keeps it up to date: not at all while nothing changes, by a patch
/// where that is enough, and otherwise by building it again, in pieces.
class XSG_API RenderListUpdater
{
public:
    using Time = std::chrono::steady_clock::time_point;
    /// A scene whose children change all the time must be seen, too.
    static constexpr int MostRestarts = 3;
    enum class Update { Same, Changed, Unfinished };

    RenderListUpdater(GeometryStore& geometry, TextureStore& textures)
        : m_builder(m_list, geometry, textures)
        , m_patcher(m_list, geometry, textures)
    {
    }

    const RenderList& getList() const { return m_list; }
    /// What is left out of the list; it must outlive the updates. Null, as at first: nothing.
    void setHiding(const SoHiding* hiding);
    /// As of RenderItemFiller; they must outlive the updates.
    void setColors(const SoShapeColors* colors);
    /// Needs the OpenGL context. Unfinished: the time was up; another call goes on, and until then the list
    /// is of no use.
    Update update(SoNode* root, const RenderView& view, Time until);
    /// What has changed in the list since the last call.
    RenderChanges takeChanges() { return std::exchange(m_list.changes, {}); }
    /// Gives back memory that only growing needs: to be called when nothing changes any more.
    void fitMemory() { m_list.fitMemory(); }
    /// Whose items RenderList::collectItemsOf() gives.
    void watch(const std::vector<std::uint64_t>& nodeIds) { m_list.record.watch(nodeIds); }
    /// How many nodes the last update looked at.
    int getNumVisited() const { return m_visited; }
    /// The next update builds the list again.
    void invalidate() { m_rootId = 0; }
    /// The stores are about to be emptied.
    void clear();

private:
    bool isSameView(const SoNode* root, const RenderView& view) const;
    bool canGoOn(const SoNode* root, const RenderView& view) const;
    Update build(SoNode* root, Time until);

    RenderList m_list;
    RenderListBuilder m_builder;
    RenderListPatcher m_patcher;
    RenderView m_view;
    std::uint64_t m_rootId = 0; // 0: the list is of no use
    std::uint32_t m_rootCount = 0;
    std::uint64_t m_structureCount = 0; // while it is being built
    bool m_isBuilding = false;
    int m_restarts = 0;
    int m_visited = 0;
    const SoHiding* m_hiding = nullptr;
    std::uint64_t m_hidingVersion = 0;
    const SoShapeColors* m_colors = nullptr;
    std::uint64_t m_colorsVersion = 0;
};

} // namespace xsg
