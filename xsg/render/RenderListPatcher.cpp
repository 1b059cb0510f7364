// SPDX-License-Identifier: MIT
#include <xsg/render/RenderListPatcher.h>

#include <xsg/actions/GroupCache.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/lights/SoLight.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoTexture2.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>

#include <algorithm>

namespace
{

constexpr std::size_t MostOutOfOrder = 64;

// To sort many items costs more than to draw a few of them in calls of their own.
bool isOutOfOrder(const xsg::RenderList& list)
{
    return list.outOfOrder > MostOutOfOrder + list.opaque.size() / 8;
}

// Draw states that are not used any more stay until the list is built again.
bool hasManyUnusedStates(const xsg::RenderList& list)
{
    return list.drawStates.getSize() > 2 * list.statesWhenBuilt + 64;
}

} // namespace

xsg::RenderListPatcher::RenderListPatcher(RenderList& list, GeometryStore& geometry, TextureStore& textures)
    : m_list(list)
    , m_geometry(geometry)
    , m_filler(list.drawStates, geometry, textures)
{
}

bool xsg::RenderListPatcher::patch(SoNode* root, const RenderView& view)
{
    if (m_list.record.isEmpty() || m_list.isPart || hasManyUnusedStates(m_list))
        return false;
    begin(view);
    traverse(root);
    if (m_gaveUp || isCut() || m_cursor != m_list.record.getSize())
        return false;
    m_geometry.removeUnused();
    patchBoxes();
    if (m_needsSorting || isOutOfOrder(m_list)) {
        m_list.changes.orders = true;
        m_list.sort();
    }
    return true;
}

void xsg::RenderListPatcher::begin(const RenderView& view)
{
    m_wantedCamera = view.camera;
    m_gaveUp = false;
    m_reaches = false;
    m_needsSorting = false;
    m_cursor = 0;
    m_firstPatched = m_list.changes.items.size();
    m_openGroups.clear();
    m_reachesBefore.clear();
    resetState();
    state().eye = view.eye;
}

void xsg::RenderListPatcher::patchBoxes()
{
    const std::vector<std::uint32_t>& changed = m_list.changes.items;
    std::size_t last = m_list.boxes.getNumChunks();
    for (std::size_t i = m_firstPatched; i < changed.size(); ++i) {
        const std::size_t chunk = BoundingBoxTree::chunkOf(changed[i]);
        if (chunk != last)
            m_list.boxes.refresh(last = chunk, [this](std::size_t item) { return m_list.items[item].box; });
    }
    if (m_firstPatched < changed.size())
        m_list.box = m_list.boxes.getWhole();
}

// Whether the walk meets the node that the recorded one met at this place.
bool xsg::RenderListPatcher::follow(const SoNode* node)
{
    if (!m_openGroups.empty() && m_openGroups.back().children)
        m_cursor = m_openGroups.back().children->entries[static_cast<std::size_t>(getFrames().back().child)];
    if (m_cursor < m_list.record.getSize() && m_list.record[m_cursor].nodeId == node->getNodeId())
        return true;
    giveUp();
    return false;
}

void xsg::RenderListPatcher::giveUp()
{
    m_gaveUp = true;
    stop();
}

bool xsg::RenderListPatcher::wantsGroup(SoGroup* group)
{
    if (!follow(group))
        return false;
    WalkRecord::Entry& known = m_list.record[m_cursor];
    const bool isSame = known.wholeCount == group->getChangeCount();
    if (!m_reaches && isSame && group->isStateScope()) {
        m_cursor = known.end;
        return false;
    }
    // A group's own fields choose or repeat its children.
    if (!isSame && known.changeCount != group->getFieldChangeCount()) {
        giveUp();
        return false;
    }
    m_nextGroup = {nullptr, static_cast<std::uint32_t>(m_cursor)};
    if (!m_reaches && group->getNumChildren() >= GroupCache::ManyChildren)
        planVisits(*group, known.wholeCount);
    known.wholeCount = group->getChangeCount();
    ++m_cursor;
    return true;
}

// Visits only what changed, where that is known and affects nothing beside it.
void xsg::RenderListPatcher::planVisits(SoGroup& group, std::uint32_t since)
{
    const WalkRecord::Children* children = m_list.record.findChildren(m_nextGroup.place);
    LargeGroupCache* cache = LargeGroupCache::find(group);
    m_plan.clear();
    if (!children || !cache || !cache->findChanged(group, since, m_plan))
        return;
    const auto isStateScope = [&](std::uint32_t place) {
        return m_list.record[children->entries[place]].isStateScope;
    };
    if (!std::all_of(m_plan.begin(), m_plan.end(), isStateScope))
        return;
    mergePlaces(m_plan, children->reaching);
    m_nextGroup.children = children;
}

void xsg::RenderListPatcher::enterGroup(SoGroup* group)
{
    if (group->isStateScope())
        m_reachesBefore.push_back(m_reaches ? 1 : 0);
    m_openGroups.push_back(m_nextGroup);
    if (m_nextGroup.children)
        visitOnly(m_plan);
}

void xsg::RenderListPatcher::leaveGroup(SoGroup* group)
{
    if (m_openGroups.back().children)
        m_cursor = m_list.record[m_openGroups.back().place].end;
    m_openGroups.pop_back();
    if (group->isStateScope()) {
        m_reaches = m_reachesBefore.back() != 0;
        m_reachesBefore.pop_back();
    }
}

void xsg::RenderListPatcher::visitProperty(SoNode* node)
{
    const bool isCamera = state().camera == node;
    if (isCamera)
        m_list.noteCamera(state(), m_wantedCamera);
    if (!follow(node))
        return;
    WalkRecord::Entry& known = m_list.record[m_cursor++];
    if (known.changeCount == node->getChangeCount())
        return;
    known.changeCount = node->getChangeCount();
    // Whether there is any light concerns the whole scene, and textures that are no longer used are freed
    // when the list is built.
    if (dynamic_cast<const SoLight*>(node) || dynamic_cast<const SoTexture2*>(node))
        giveUp();
    m_reaches = m_reaches || !isCamera;
}

void xsg::RenderListPatcher::visitShape(SoShape* shape)
{
    if (!follow(shape))
        return;
    WalkRecord::Entry& known = m_list.record[m_cursor++];
    if (!m_reaches && known.changeCount == shape->getChangeCount())
        return;
    known.changeCount = shape->getChangeCount();
    const bool isVisible = !state().drawStyle || state().drawStyle->isVisible();
    const std::size_t copies = !isVisible ? 0 : state().instances ? state().instances->size() : 1;
    const std::uint32_t end = m_list.record.firstItemAfter(m_cursor - 1, m_list.items.size());
    if (end - known.firstItem != copies || shape->asDrawingCallback()) {
        giveUp();
        return;
    }
    std::uint32_t at = known.firstItem;
    if (isVisible)
        state().forEachInstance([&](const SbMatrix& matrix) { patchItem(at++, *shape, matrix); });
}

void xsg::RenderListPatcher::patchItem(std::uint32_t index, const SoShape& shape, const SbMatrix& toWorld)
{
    RenderItem& item = m_list.items[index];
    const RenderItem before = item;
    const bool wasDrawn = before.isDrawn();
    m_list.changes.items.push_back(index);
    m_filler.fill(item, shape, state(), toWorld);
    m_geometry.release(before.geometry);
    if (!m_list.copies.empty() || item.isTransparent != before.isTransparent || item.isDrawn() != wasDrawn)
        m_needsSorting = true;
    if (item.geometry == before.geometry && item.drawState == before.drawState)
        return;
    m_list.changes.regrouped.push_back(index);
    ++m_list.outOfOrder;
}
