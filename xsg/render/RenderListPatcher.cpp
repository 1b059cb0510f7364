// SPDX-License-Identifier: MIT
#include <xsg/render/RenderListPatcher.h>

#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/nodes/groups/SoSwitch.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>

#include <algorithm>

namespace
{

constexpr std::size_t MostOutOfOrder = 64;
// To look for a node among so many recorded ones costs more than to build the list again.
constexpr int MostSkipped = 1 << 16;

// To sort a few items costs nothing.
constexpr std::size_t FewItems = 1000;

// To sort many items costs more than to draw a few of them in calls of their own.
bool isOutOfOrder(const xsg::RenderList& list)
{
    return list.outOfOrder > MostOutOfOrder + list.opaque.size() / 8;
}

// The recorded child before this place; those that are new or not visited are none.
std::uint32_t lastBefore(const std::vector<std::uint32_t>& entries, std::size_t place)
{
    while (place > 0 && entries[place - 1] == xsg::WalkRecord::None)
        --place;
    return place == 0 ? xsg::WalkRecord::None : entries[place - 1];
}

} // namespace

bool xsg::RenderListPatcher::patch(SoNode* root, const RenderView& view)
{
    if (m_list.record.isEmpty() || m_list.isPart || m_list.items.size() >= MostItems)
        return false;
    begin(view);
    traverse(root);
    if (m_gaveUp || isCut() || m_list.items.size() >= MostItems)
        return false;
    finish();
    return true;
}

void xsg::RenderListPatcher::begin(const RenderView& view)
{
    m_wantedCamera = view.camera;
    m_gaveUp = false;
    m_reaches = false;
    m_needsSorting = false;
    m_isRestructured = false;
    m_skipped = 0;
    m_firstPatched = m_list.changes.items.size();
    m_open.assign(1, {});
    m_levels.assign(1, {});
    m_lightsMet.reset();
    resetState();
    state().eye = view.eye;
}

void xsg::RenderListPatcher::finish()
{
    m_geometry.removeUnused();
    m_textures.removeUnused(m_list.drawStates.takeUnusedTextures());
    patchBoxes();
    // An order that nobody has taken yet must be right.
    m_needsSorting = m_needsSorting || m_list.changes.all || m_list.changes.orders ||
                     (m_isRestructured && m_list.items.size() < FewItems);
    if (m_needsSorting || isOutOfOrder(m_list)) {
        m_list.changes.orders = true;
        m_list.sort();
    } else {
        m_list.relistTransparent(m_list.changes.items, m_firstPatched);
    }
}

void xsg::RenderListPatcher::patchBoxes()
{
    const auto boxOf = [this](std::size_t item) { return m_list.items[item].box; };
    const std::vector<std::uint32_t>& changed = m_list.changes.items;
    if (m_firstPatched == changed.size())
        return;
    if (m_list.boxes.getSize() < m_list.items.size())
        m_list.boxes.grow(m_list.items.size(), boxOf);
    std::size_t last = m_list.boxes.getNumChunks();
    for (std::size_t i = m_firstPatched; i < changed.size(); ++i) {
        const std::size_t chunk = BoundingBoxTree::chunkOf(changed[i]);
        if (chunk != last)
            m_list.boxes.refresh(last = chunk, boxOf);
    }
    m_list.box = m_list.boxes.getWhole();
}

void xsg::RenderListPatcher::giveUp()
{
    m_gaveUp = true;
    stop();
}

// Finds out whether the walk meets the node that the recorded one met at this place, and takes out of the
// record what is not there any more.
xsg::RenderListPatcher::Met xsg::RenderListPatcher::meet(const SoNode* node)
{
    if (m_levels.back().isNew)
        return Met::New;
    if (m_levels.back().children)
        return meetPlanned(node);
    const WalkRecord& record = m_list.record;
    OpenGroup& open = m_open.back();
    int between = 0;
    std::uint32_t at = record.getNext(open.entry, open.last);
    for (; at != None && record[at].nodeId != node->getNodeId(); at = record[at].next)
        ++between;
    m_skipped += between;
    if (m_skipped > MostSkipped)
        giveUp();
    if (at == None && !m_gaveUp) {
        m_lastItem = findItemBefore();
        return Met::New;
    }
    for (; between > 0 && !m_gaveUp; --between)
        removeNext(open.entry, open.last);
    open.last = at;
    return m_gaveUp ? Met::GaveUp : Met::Known;
}

xsg::RenderListPatcher::Met xsg::RenderListPatcher::meetPlanned(const SoNode* node)
{
    const std::vector<std::uint32_t>& entries = m_levels.back().children->entries;
    const auto child = static_cast<std::size_t>(getFrames().back().child);
    const std::uint32_t entry = entries[child];
    if (entry == None) {
        m_open.back().last = lastBefore(entries, child);
        m_lastItem = findItemBefore();
        return Met::New;
    }
    m_open.back().last = entry;
    if (m_list.record[entry].nodeId == node->getNodeId())
        return Met::Known;
    giveUp();
    return Met::GaveUp;
}

// After the node that is new has been recorded.
void xsg::RenderListPatcher::keepNew()
{
    m_isRestructured = true;
    const Level& level = m_levels.back();
    if (!level.children)
        return;
    const auto place = static_cast<std::uint32_t>(getFrames().back().child);
    const std::uint32_t entry = m_open.back().last;
    level.children->entries[place] = entry;
    std::vector<std::uint32_t>& reaching = level.children->reaching;
    if (!m_list.record[entry].isIsolated)
        reaching.insert(std::lower_bound(reaching.begin(), reaching.end(), place), place);
}

// From here on, what is visited may be affected.
void xsg::RenderListPatcher::reach()
{
    m_reaches = true;
    if (m_levels.back().children)
        visitRest();
}

// The item that comes before what is new: the one before the next that is recorded.
std::uint32_t xsg::RenderListPatcher::findItemBefore() const
{
    for (auto open = m_open.rbegin(); open != m_open.rend(); ++open) {
        std::uint32_t at = m_list.record.getNext(open->entry, open->last);
        for (; at != None; at = m_list.record[at].next) {
            std::uint32_t item = None;
            m_list.record.visitIn(at, [&](const WalkRecord::Entry& entry) {
                item = entry.itemCount > 0 ? entry.first : None;
                return item != None;
            });
            if (item != None)
                return m_list.items[item].previous;
        }
    }
    return m_list.lastItem;
}

bool xsg::RenderListPatcher::wantsGroup(SoGroup* group)
{
    m_nextLevel = {};
    m_ownFieldsChanged = false;
    const Met met = meet(group);
    if (met == Met::GaveUp)
        return false;
    if (met == Met::New) {
        m_nextLevel.isNew = true;
        RenderListBuilder::wantsGroup(group);
        keepNew();
        return true;
    }
    m_nextEntry = m_open.back().last;
    WalkRecord::Entry& known = m_list.record[m_nextEntry];
    const bool isSame = known.wholeCount == group->getChangeCount();
    if (!m_reaches && isSame && group->isStateScope())
        return false;
    m_ownFieldsChanged = known.changeCount != group->getFieldChangeCount();
    const std::uint32_t since = std::exchange(known.wholeCount, group->getChangeCount());
    known.changeCount = group->getFieldChangeCount();
    if (!m_reaches && !isSame && !m_ownFieldsChanged)
        planVisits(*group, since);
    if (!m_nextLevel.children && !isSame)
        m_list.record.dropChildren(m_nextEntry);
    return !m_gaveUp;
}

// Visits only what changed, where that is known, and what sets the state for it.
void xsg::RenderListPatcher::planVisits(SoGroup& group, std::uint32_t since)
{
    WalkRecord::Children* children = m_list.record.findChildren(m_nextEntry);
    LargeGroupCache* cache = LargeGroupCache::find(group);
    std::vector<SoChildrenChange> changes;
    m_plan.clear();
    if (!children || !cache || !cache->findChanged(group, since, changes, m_plan) ||
        !follow(m_nextEntry, *children, changes))
        return;
    m_plan.insert(m_plan.end(), children->reaching.begin(), children->reaching.end());
    std::sort(m_plan.begin(), m_plan.end());
    m_plan.erase(std::unique(m_plan.begin(), m_plan.end()), m_plan.end());
    m_nextLevel.children = children;
}

// Brings what is recorded of the children to their present list, and plans visits to those that are new.
// False where what has gone affects the others.
bool xsg::RenderListPatcher::follow(std::uint32_t entry, WalkRecord::Children& children,
                                    const std::vector<SoChildrenChange>& changes)
{
    std::vector<std::uint32_t>& entries = children.entries;
    std::vector<std::uint32_t> added;
    for (const SoChildrenChange& change : changes) {
        const std::uint32_t end = change.place + change.removed;
        const std::uint32_t previous = lastBefore(entries, change.place);
        for (std::uint32_t place = change.place; place < end; ++place) {
            if (entries[place] != None && !m_list.record[entries[place]].isIsolated)
                return false;
            if (entries[place] != None)
                removeNext(entry, previous);
        }
        const auto first = entries.begin() + change.place;
        entries.insert(entries.erase(first, first + change.removed), change.inserted, None);
        added.erase(std::remove_if(added.begin(), added.end(),
                                   [&](std::uint32_t at) { return at >= change.place && at < end; }),
                    added.end());
        for (std::vector<std::uint32_t>* places : {&added, &children.reaching}) {
            for (std::uint32_t& place : *places)
                place += place >= end ? change.inserted - change.removed : 0;
        }
        for (std::uint32_t i = 0; i < change.inserted; ++i)
            added.push_back(change.place + i);
    }
    m_plan.insert(m_plan.end(), added.begin(), added.end());
    return true;
}

void xsg::RenderListPatcher::enterGroup(SoGroup* group)
{
    m_nextLevel.reachesAfter = m_reaches;
    m_levels.push_back(m_nextLevel);
    if (m_nextLevel.isNew) {
        RenderListBuilder::enterGroup(group);
        return;
    }
    m_open.push_back({m_nextEntry, None});
    // A switch only chooses, and what it has left out shows in the record.
    m_reaches = m_reaches || (m_ownFieldsChanged && !dynamic_cast<const SoSwitch*>(group));
    if (m_nextLevel.children)
        visitOnly(m_plan);
}

void xsg::RenderListPatcher::leaveGroup(SoGroup* group)
{
    const Level level = m_levels.back();
    const OpenGroup open = m_open.back();
    const bool isPlanned = level.children != nullptr;
    if (!level.isNew) {
        while (!isPlanned && !m_gaveUp && m_list.record.getNext(open.entry, open.last) != None)
            removeNext(open.entry, open.last);
    }
    m_levels.pop_back();
    if (isPlanned || m_list.record.findChildren(open.entry))
        m_open.pop_back();
    else
        RenderListBuilder::leaveGroup(group);
    if (group->isStateScope())
        m_reaches = level.reachesAfter;
    else if (m_reaches || (level.isNew && !m_levels.back().isNew))
        reach();
}

void xsg::RenderListPatcher::visitProperty(SoNode* node)
{
    const bool isCamera = state().camera == node;
    const Met met = meet(node);
    if (met == Met::GaveUp)
        return;
    if (met == Met::New) {
        RenderListBuilder::visitProperty(node);
        keepNew();
        if (m_list.record[m_open.back().last].isSpecial)
            giveUp();
        else if (!isCamera && !m_levels.back().isNew)
            reach();
        return;
    }
    if (isCamera)
        m_list.noteCamera(state(), m_wantedCamera);
    WalkRecord::Entry& known = m_list.record[m_open.back().last];
    if (known.changeCount == node->getChangeCount())
        return;
    known.changeCount = node->getChangeCount();
    m_list.lights -= known.isLight ? 1 : 0;
    known.isLight = isLight(node);
    m_list.lights += known.isLight ? 1 : 0;
    if (!isCamera)
        reach();
}

void xsg::RenderListPatcher::visitShape(SoShape* shape)
{
    const Met met = meet(shape);
    if (met == Met::GaveUp)
        return;
    if (met == Met::New) {
        RenderListBuilder::visitShape(shape);
        keepNew();
        noteNew(m_list.record[m_open.back().last]);
        return;
    }
    WalkRecord::Entry& known = m_list.record[m_open.back().last];
    if (!m_reaches && known.changeCount == shape->getChangeCount())
        return;
    known.changeCount = shape->getChangeCount();
    if (known.isSpecial) {
        giveUp();
        return;
    }
    if (countItems() != known.itemCount) {
        removeItems(known);
        m_lastItem = findItemBefore();
        addItems(known, *shape);
        noteNew(known);
        return;
    }
    std::uint32_t at = known.first;
    if (known.itemCount > 0)
        state().forEachInstance([&](const SbMatrix& matrix) { patchItem(at++, *shape, matrix); });
}

void xsg::RenderListPatcher::noteNew(const WalkRecord::Entry& entry)
{
    if (entry.isSpecial)
        giveUp();
    for (std::uint32_t i = 0; i < entry.itemCount; ++i) {
        m_list.changes.items.push_back(entry.first + i);
        m_list.changes.regrouped.push_back(entry.first + i);
    }
    m_list.outOfOrder += entry.itemCount;
    m_list.changes.structure = m_list.changes.structure || entry.itemCount > 0;
    m_isRestructured = true;
    m_needsSorting = m_needsSorting || !m_list.copies.empty();
}

void xsg::RenderListPatcher::removeNext(std::uint32_t parent, std::uint32_t previous)
{
    m_isRestructured = true;
    if (!m_list.record[m_list.record.getNext(parent, previous)].isIsolated)
        m_reaches = true;
    m_list.record.removeNext(parent, previous, [this](const WalkRecord::Entry& entry) {
        if (entry.isSpecial)
            giveUp();
        m_list.lights -= entry.isLight ? 1 : 0;
        removeItems(entry);
    });
}

void xsg::RenderListPatcher::removeItems(const WalkRecord::Entry& entry)
{
    for (std::uint32_t item = entry.first; item < entry.first + entry.itemCount; ++item) {
        release(m_list.items[item]);
        m_list.removeItem(item);
        m_list.changes.items.push_back(item);
    }
    m_list.changes.structure = m_list.changes.structure || entry.itemCount > 0;
    m_needsSorting = m_needsSorting || !m_list.copies.empty();
}

void xsg::RenderListPatcher::release(const RenderItem& item)
{
    m_geometry.release(item.geometry);
    m_list.drawStates.release(item.drawState);
}

void xsg::RenderListPatcher::patchItem(std::uint32_t index, const SoShape& shape, const SbMatrix& toWorld)
{
    RenderItem& item = m_list.items[index];
    const RenderItem before = item;
    m_list.changes.items.push_back(index);
    m_filler.fill(item, shape, state(), toWorld);
    const bool isElsewhere = item.isTransparent != before.isTransparent || item.isDrawn() != before.isDrawn();
    m_list.changes.structure = m_list.changes.structure || isElsewhere;
    m_isRestructured = m_isRestructured || isElsewhere;
    m_needsSorting = m_needsSorting || !m_list.copies.empty();
    if (isElsewhere || item.geometry != before.geometry || item.drawState != before.drawState) {
        m_list.changes.regrouped.push_back(index);
        ++m_list.outOfOrder;
    }
    release(before);
}
