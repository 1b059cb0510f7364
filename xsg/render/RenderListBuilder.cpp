// SPDX-License-Identifier: MIT
#include <xsg/render/RenderListBuilder.h>

#include <xsg/actions/GroupCache.h>
#include <xsg/actions/RepeatBound.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/lights/SoLight.h>
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
    m_open.assign(1, {});
    m_lastItem = None;
    m_lightsMet.reset();
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
        reportBound(*m_root,
                    SbSentence("%1 has so many copies of shapes that only the first %2 of them are shown.",
                               nameOfRoot(*m_root), MostItems));
    m_list.isPart = isCut();
    m_geometry.removeUnused();
    m_textures.endRound();
    m_list.boxes.build(m_list.items.size(), [this](std::size_t i) { return m_list.items[i].box; });
    m_list.box = m_list.boxes.getWhole();
    m_list.sort();
}

std::uint32_t xsg::RenderListBuilder::recordNode(const SoNode* node)
{
    OpenGroup& open = m_open.back();
    return open.last = m_list.record.add(node, open.entry, open.last);
}

bool xsg::RenderListBuilder::wantsGroup(SoGroup* group)
{
    m_list.isViewDependent = m_list.isViewDependent || group->isViewDependent();
    OpenGroup& open = m_open.back();
    m_nextGroup = open.last = m_list.record.addGroup(group, open.entry, open.last);
    return true;
}

void xsg::RenderListBuilder::enterGroup(SoGroup* /*group*/)
{
    m_open.push_back({m_nextGroup, None});
}

void xsg::RenderListBuilder::leaveGroup(SoGroup* group)
{
    const std::uint32_t entry = m_open.back().entry;
    m_open.pop_back();
    if (group->getNumChildren() < GroupCache::ManyChildren)
        return;
    GroupCache::of(*group); // keeps track of changes from now on
    m_list.record.indexChildren(entry, *group);
}

// Only where the lights are other ones than before, which they mostly are not.
bool xsg::RenderListBuilder::isLight(const SoNode* node)
{
    if (!state().lights || state().lights == m_lightsMet)
        return false;
    m_lightsMet = state().lights;
    const auto* light = dynamic_cast<const SoLight*>(node);
    return light && light->on.getValue();
}

void xsg::RenderListBuilder::visitProperty(SoNode* node)
{
    WalkRecord::Entry& entry = m_list.record[recordNode(node)];
    if (state().camera == node) {
        m_list.noteCamera(state(), m_wantedCamera);
        entry.isSpecial = !m_wantedCamera || node == m_wantedCamera;
    }
    entry.isLight = isLight(node);
    m_list.lights += entry.isLight ? 1 : 0;
}

std::size_t xsg::RenderListBuilder::countItems()
{
    const SoState& now = state();
    if (now.drawStyle && !now.drawStyle->isVisible())
        return 0;
    const std::size_t room = MostItems - std::min(MostItems, m_list.items.size());
    return std::min(room, now.instances ? now.instances->size() : 1);
}

void xsg::RenderListBuilder::visitShape(SoShape* shape)
{
    WalkRecord::Entry& entry = m_list.record[recordNode(shape)];
    entry.isIsolated = true;
    addItems(entry, *shape);
}

void xsg::RenderListBuilder::addItems(WalkRecord::Entry& entry, const SoShape& shape)
{
    const SoDrawingCallback* callback = shape.asDrawingCallback();
    entry.isSpecial = callback != nullptr;
    entry.itemCount = static_cast<std::uint32_t>(countItems());
    if (callback && (!state().drawStyle || state().drawStyle->isVisible()))
        m_list.callbacks.push_back({callback, state().modelMatrix});
    if (entry.itemCount == 0)
        return;
    entry.first = m_list.addItems(entry.itemCount, m_lastItem);
    m_list.hasRepeats = m_list.hasRepeats || isRepeating();
    std::uint32_t at = entry.first;
    state().forEachInstance([&](const SbMatrix& matrix) {
        if (at == entry.first + entry.itemCount)
            return;
        RenderItem& item = m_list.items[m_lastItem = at++];
        item.isRepeat = isRepeating();
        m_filler.fill(item, shape, state(), matrix);
    });
}
