// SPDX-License-Identifier: MIT
#include <xsg/render/RenderListBuilder.h>

#include <xsg/actions/GroupCache.h>
#include <xsg/actions/RepeatBound.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>

namespace
{

constexpr int FewNodes = 20'000; // take no time that anybody would notice

} // namespace

xsg::RenderListBuilder::RenderListBuilder(RenderList& list, GeometryStore& geometry, TextureStore& textures)
    : m_list(list)
    , m_geometry(geometry)
    , m_textures(textures)
    , m_filler(list.drawStates, geometry, textures)
{
}

void xsg::RenderListBuilder::begin(SoNode* root, const RenderView& view)
{
    m_root = root;
    m_isWalked = false;
    m_list.clear();
    m_geometry.releaseAllUsers();
    m_textures.beginRound(root->getNodeId());
    m_openGroups.clear();
    m_wantedCamera = view.camera;
    resetState();
    state().eye = view.eye;
    SoTraversal::begin(root);
}

bool xsg::RenderListBuilder::advance(std::chrono::steady_clock::time_point until)
{
    while (!m_isWalked && getNumVisited() < FewNodes)
        m_isWalked = SoTraversal::advance({});
    if (!m_isWalked) {
        m_isWalked = SoTraversal::advance(until);
        if (!m_isWalked || std::chrono::steady_clock::now() >= until)
            return false; // the rest takes a piece of its own
    }
    finish();
    return true;
}

void xsg::RenderListBuilder::finish()
{
    if (m_list.items.size() == MostItems)
        reportBound(*m_root, "has so many copies of shapes that only the first " + std::to_string(MostItems) +
                                 " of them are shown.");
    m_list.isPart = isCut();
    m_geometry.removeUnused();
    m_textures.endRound();
    m_list.statesWhenBuilt = m_list.drawStates.getSize();
    m_list.boxes.build(m_list.items.size(), [this](std::size_t i) { return m_list.items[i].box; });
    m_list.box = m_list.boxes.getWhole();
    m_list.sort();
}

bool xsg::RenderListBuilder::wantsGroup(SoGroup* group)
{
    m_list.isViewDependent = m_list.isViewDependent || group->isViewDependent();
    m_openGroups.push_back(m_list.record.openGroup(group, m_list.items.size()));
    return true;
}

void xsg::RenderListBuilder::leaveGroup(SoGroup* group)
{
    const std::uint32_t place = m_openGroups.back();
    m_openGroups.pop_back();
    m_list.record.closeGroup(place);
    if (group->getNumChildren() >= GroupCache::ManyChildren && m_list.record.addChildren(place, *group))
        GroupCache::of(*group); // keeps track of changes from now on
}

void xsg::RenderListBuilder::visitProperty(SoNode* node)
{
    if (state().camera == node)
        m_list.noteCamera(state(), m_wantedCamera);
    m_list.hasLights = m_list.hasLights || state().lights;
    m_list.record.add(node, m_list.items.size());
}

void xsg::RenderListBuilder::visitShape(SoShape* shape)
{
    m_list.record.add(shape, m_list.items.size());
    if (state().drawStyle && !state().drawStyle->isVisible())
        return;
    if (const SoDrawingCallback* callback = shape->asDrawingCallback())
        m_list.callbacks.push_back({callback, state().modelMatrix});
    state().forEachInstance([&](const SbMatrix& matrix) {
        if (m_list.items.size() == MostItems)
            return;
        RenderItem& item = m_list.items.emplace_back();
        item.isRepeat = isRepeating();
        m_list.hasRepeats = m_list.hasRepeats || item.isRepeat;
        m_filler.fill(item, *shape, state(), matrix);
    });
}
