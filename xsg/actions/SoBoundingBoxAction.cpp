// SPDX-License-Identifier: MIT
#include <xsg/actions/SoBoundingBoxAction.h>

#include <xsg/actions/GroupCache.h>
#include <xsg/counters/LibraryCounters.h>
#include <xsg/nodes/groups/SoSeparator.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>

namespace
{

using ChildBoxes = xsg::LargeGroupCache::ChildBoxes;

// On a walk over all children: those up to this place that gave no box of their own.
void passOthers(ChildBoxes& children, std::size_t end)
{
    while (children.boxes.size() < end) {
        children.others.push_back(static_cast<std::uint32_t>(children.boxes.size()));
        children.boxes.emplace_back();
    }
}

} // namespace

SbBox3f SoBoundingBoxAction::getBox(SoNode* root)
{
    prepare();
    if (root)
        traverse(root);
    count();
    return m_open.front().box;
}

void SoBoundingBoxAction::begin(SoNode* root)
{
    prepare();
    SoTraversal::begin(root);
}

bool SoBoundingBoxAction::advance(std::chrono::steady_clock::time_point until)
{
    const bool isDone = SoTraversal::advance(until);
    if (isDone)
        count();
    return isDone;
}

void SoBoundingBoxAction::prepare()
{
    resetState();
    state().chooseAll = true;
    m_open.clear();
    m_open.emplace_back();
    m_hits = m_misses = 0;
}

void SoBoundingBoxAction::count() const
{
    xsg::feeds.boxHits.add(m_hits);
    xsg::feeds.boxMisses.add(m_misses);
}

bool SoBoundingBoxAction::wantsGroup(SoGroup* group)
{
    const xsg::GroupCache* cache = group->asSeparator() ? xsg::GroupCache::find(*group) : nullptr;
    if (!cache || !cache->hasBox(*group, xsg::BoxInputs::of(state())))
        return true;
    ++m_hits;
    keepChild(cache->getBox());
    return false;
}

void SoBoundingBoxAction::enterGroup(SoGroup* group)
{
    if (!group->asSeparator())
        return;
    ++m_misses;
    Open& open = m_open.emplace_back();
    open.large = xsg::GroupCache::of(*group).asLarge();
    if (open.large)
        openChildren(*group, open);
    state().modelMatrix = SbMatrix();
    state().instances = nullptr;
}

// Visits only what changed, where that is known and affects nothing beside it.
void SoBoundingBoxAction::openChildren(SoGroup& separator, Open& open)
{
    xsg::LargeGroupCache& cache = *open.large;
    ChildBoxes& children = cache.childBoxes();
    const auto isSeparator = [&](std::uint32_t place) {
        const SoGroup* group = separator.getChildren()[place]->asGroup();
        return group && group->asSeparator();
    };
    std::vector<std::uint32_t> places;
    if (cache.wasMadeWith(xsg::BoxInputs::of(state())) &&
        cache.findChanged(separator, cache.getChangeCount(), places) &&
        std::all_of(places.begin(), places.end(), isSeparator)) {
        xsg::mergePlaces(places, children.others);
        visitOnly(std::move(places));
        return;
    }
    open.visitsAll = true;
    cache.dropBox(); // the walk may end before it is back here
    children.boxes.clear();
    children.boxes.reserve(static_cast<std::size_t>(separator.getNumChildren()));
    children.others.clear();
}

void SoBoundingBoxAction::closeChildren(const SoGroup& separator, Open& open)
{
    if (!open.large)
        return;
    ChildBoxes& children = open.large->childBoxes();
    if (open.visitsAll) {
        passOthers(children, static_cast<std::size_t>(separator.getNumChildren()));
        children.tree.build(children.boxes.size(), [&](std::size_t place) { return children.boxes[place]; });
    }
    open.box.extendBy(children.tree.getWhole());
}

void SoBoundingBoxAction::leaveGroup(SoGroup* group)
{
    if (!group->asSeparator())
        return;
    closeChildren(*group, m_open.back());
    const SbBox3f box = m_open.back().box;
    m_open.pop_back();
    if (isCut()) // what is remembered is the box of the whole group
        xsg::GroupCache::of(*group).dropBox();
    else
        xsg::GroupCache::of(*group).setBox(box, *group, xsg::BoxInputs::of(state()));
    keepChild(box);
}

void SoBoundingBoxAction::visitShape(SoShape* shape)
{
    if (!state().drawStyle || state().drawStyle->isVisible())
        extend(shape->getBox(state()));
}

SbBox3f SoBoundingBoxAction::placed(const SbBox3f& box)
{
    SbBox3f all;
    if (!box.isEmpty())
        state().forEachInstance([&](const SbMatrix& matrix) { all.extendBy(matrix.transform(box)); });
    return all;
}

void SoBoundingBoxAction::extend(const SbBox3f& box)
{
    m_open.back().box.extendBy(placed(box));
}

// The box of a separator, with the state as it is beside it.
void SoBoundingBoxAction::keepChild(const SbBox3f& box)
{
    Open& around = m_open.back();
    // Where another group stands in between, it is no child of the separator that is open.
    if (!around.large || !getFrames().back().group->asSeparator()) {
        extend(box);
        return;
    }
    ChildBoxes& children = around.large->childBoxes();
    const auto place = static_cast<std::size_t>(getFrames().back().child);
    if (around.visitsAll) {
        passOthers(children, place);
        children.boxes.push_back(placed(box));
        return;
    }
    children.boxes[place] = placed(box);
    children.tree.refresh(xsg::BoundingBoxTree::chunkOf(place),
                          [&](std::size_t i) { return children.boxes[i]; });
}
