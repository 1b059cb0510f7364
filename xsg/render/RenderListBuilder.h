// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoTraversal.h>
#include <xsg/render/RenderItemFiller.h>

namespace xsg
{

/// Makes a render list by a walk over the whole scene, and records the walk for the patcher. Needs the OpenGL
/// context, as geometry and textures are uploaded on the way.
class RenderListBuilder : private SoTraversal
{
public:
    /// What a scene unfolds to beyond this is left out.
    static constexpr std::size_t MostItems = 1U << 22U;

    RenderListBuilder(RenderList& list, GeometryStore& geometry, TextureStore& textures);
    void build(SoNode* root, const RenderView& view);
    using SoTraversal::getNumVisited;
    using SoTraversal::setHiding;

private:
    bool wantsGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;
    void visitProperty(SoNode* node) override;

    RenderList& m_list;
    GeometryStore& m_geometry;
    TextureStore& m_textures;
    RenderItemFiller m_filler;
    const SoCamera* m_wantedCamera = nullptr;
    std::vector<std::uint32_t> m_openGroups; // their places in the record
};

} // namespace xsg
