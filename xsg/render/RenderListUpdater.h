// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/RenderListBuilder.h>
#include <xsg/render/RenderListPatcher.h>

namespace xsg
{

/// Owns the render list of a scene and keeps it up to date: not at all while nothing changes, by a patch
/// where that is enough, and otherwise by building it again.
class RenderListUpdater
{
public:
    RenderListUpdater(GeometryStore& geometry, TextureStore& textures)
        : m_builder(m_list, geometry, textures)
        , m_patcher(m_list, geometry, textures)
    {
    }

    const RenderList& getList() const { return m_list; }
    /// What is left out of the list; it must outlive the updates. Null, as at first: nothing.
    void setHiding(const SoHiding* hiding);
    /// True when something had changed. Needs the OpenGL context.
    bool update(SoNode* root, const RenderView& view);
    /// What has changed in the list since the last call.
    RenderChanges takeChanges() { return std::exchange(m_list.changes, {}); }
    /// Gives back memory that only growing needs: to be called when nothing changes any more.
    void fitMemory() { m_list.fitMemory(); }
    /// How many nodes the last update looked at.
    int getNumVisited() const { return m_visited; }
    /// The next update builds the list again.
    void invalidate() { m_rootId = 0; }
    /// The stores are about to be emptied.
    void clear();

private:
    RenderList m_list;
    RenderListBuilder m_builder;
    RenderListPatcher m_patcher;
    RenderView m_view;
    std::uint64_t m_rootId = 0; // 0: the list is of no use
    std::uint32_t m_rootCount = 0;
    int m_visited = 0;
    const SoHiding* m_hiding = nullptr;
    std::uint64_t m_hidingVersion = 0;
};

} // namespace xsg
