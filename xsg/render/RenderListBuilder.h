// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoTraversal.h>
#include <xsg/render/RenderItemFiller.h>

namespace xsg
{

/// Makes a render list by a walk over the whole scene, and records the walk for the patcher. Needs the OpenGL
/// context, as geometry and textures are uploaded on the way.
class XSG_API RenderListBuilder : protected SoTraversal
{
public:
    /// What a scene unfolds to beyond this is left out.
    static constexpr std::size_t MostItems = 1U << 22U;

    RenderListBuilder(RenderList& list, GeometryStore& geometry, TextureStore& textures);
    /// Begins a list; advance() returns true when it is complete, or else when the time is up, but not before
    /// a few thousand nodes. Meanwhile the list is of no use, and fields may change, children may not: the
    /// list is then to be patched, or begun again.
    void begin(SoNode* root, const RenderView& view);
    bool advance(std::chrono::steady_clock::time_point until);
    using SoTraversal::getNumVisited;
    using SoTraversal::setHiding;
    void setColors(const SoShapeColors* colors) { m_filler.setColors(colors); }

protected:
    static constexpr std::uint32_t None = WalkRecord::None;

    /// A group that is open, by its entry in the record.
    struct OpenGroup {
        std::uint32_t entry = None; // None: around the root
        std::uint32_t last = None;  // the child that was met last
    };

    bool wantsGroup(SoGroup* group) override;
    void enterGroup(SoGroup* group) override;
    void leaveGroup(SoGroup* group) override;
    void visitShape(SoShape* shape) override;
    void visitProperty(SoNode* node) override;

    /// Makes a record of the node as the next child of the group that is open.
    std::uint32_t recordNode(const SoNode* node);
    /// Makes the items of a shape, behind the last one.
    void addItems(WalkRecord::Entry& entry, const SoShape& shape);
    std::size_t countItems();
    /// Right after the node has changed the state.
    bool isLight(const SoNode* node);

    RenderList& m_list;
    GeometryStore& m_geometry;
    TextureStore& m_textures;
    RenderItemFiller m_filler;
    const SoCamera* m_wantedCamera = nullptr;
    std::vector<OpenGroup> m_open;
    std::uint32_t m_lastItem = None;     // in the order of the walk
    SoShared<SoLightSource> m_lightsMet; // before the present node

private:
    void finish();

    SoNode* m_root = nullptr;
    bool m_isWalked = false;
    std::uint32_t m_nextGroup = None; // the entry of the group that is being opened
};

} // namespace xsg
