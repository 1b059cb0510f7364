// SPDX-License-Identifier: MIT
#include <xsg/actions/SoBoundingBoxAction.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoPoints.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>

namespace
{

bool isVisible(const SoState& state)
{
    return !state.drawStyle || state.drawStyle->isVisible();
}

SoSeparator::Outside outsideOf(const SoState& state)
{
    if (!state.points)
        return {0, 0, isVisible(state)};
    return {state.points->getNodeId(), state.points->getChangeCount(), isVisible(state)};
}

} // namespace

bool SoBoundingBoxAction::isValid(const SoSeparator& separator, const SoState& stateAt)
{
    const auto& cache = separator.boxCache();
    return cache.isValid && cache.changeCount == separator.getChangeCount() &&
           cache.outside == outsideOf(stateAt);
}

SbBox3f SoBoundingBoxAction::getBox(SoNode* root)
{
    resetState();
    state().chooseAll = true;
    m_open.clear();
    m_open.emplace_back();
    m_hits = m_misses = 0;
    if (root)
        traverse(root);
    xsg::feeds.boxHits.add(m_hits);
    xsg::feeds.boxMisses.add(m_misses);
    return m_open.front().box;
}

bool SoBoundingBoxAction::wantsGroup(SoGroup* group)
{
    const SoSeparator* separator = group->asSeparator();
    if (!separator || !isValid(*separator, state()))
        return true;
    ++m_hits;
    keepChild(separator->boxCache().box);
    return false;
}

void SoBoundingBoxAction::enterGroup(SoGroup* group)
{
    const SoSeparator* separator = group->asSeparator();
    if (!separator)
        return;
    ++m_misses;
    Open& open = m_open.emplace_back();
    if (separator->getNumChildren() >= SoGroup::ManyChildren)
        openChildren(*separator, open);
    else
        separator->boxCache().children.reset();
    state().modelMatrix = SbMatrix();
    state().instances = nullptr;
}

// Visits only what changed, where that is known and reaches nothing beside it.
void SoBoundingBoxAction::openChildren(const SoSeparator& separator, Open& open)
{
    auto& cache = separator.boxCache();
    if (!cache.children)
        cache.children = std::make_unique<SoSeparator::ChildBoxes>();
    separator.rememberTouched();
    open.children = cache.children.get();
    const auto isSeparator = [&](std::uint32_t place) {
        const SoGroup* group = separator.getChildren()[place]->asGroup();
        return group && group->asSeparator();
    };
    std::vector<std::uint32_t> places;
    if (cache.isValid && cache.outside == outsideOf(state()) &&
        separator.findTouched(cache.changeCount, places) &&
        std::all_of(places.begin(), places.end(), isSeparator)) {
        const auto& others = open.children->others;
        const auto middle = static_cast<std::ptrdiff_t>(places.size());
        places.insert(places.end(), others.begin(), others.end());
        std::inplace_merge(places.begin(), places.begin() + middle, places.end());
        visitOnly(std::move(places));
        return;
    }
    open.isAfresh = true;
    cache.isValid = false; // the walk may end before it is back here
    open.children->boxes.clear();
    open.children->boxes.reserve(static_cast<std::size_t>(separator.getNumChildren()));
    open.children->others.clear();
}

void SoBoundingBoxAction::closeChildren(const SoSeparator& separator, Open& open)
{
    if (!open.children)
        return;
    if (open.isAfresh) {
        passOthers(*open.children, static_cast<std::size_t>(separator.getNumChildren()));
        open.children->chunks.build(open.children->boxes.size(),
                                    [&](std::size_t place) { return open.children->boxes[place]; });
    }
    open.box.extendBy(open.children->chunks.getWhole());
}

void SoBoundingBoxAction::leaveGroup(SoGroup* group)
{
    const SoSeparator* separator = group->asSeparator();
    if (!separator)
        return;
    closeChildren(*separator, m_open.back());
    const SbBox3f box = m_open.back().box;
    m_open.pop_back();
    auto& cache = separator->boxCache();
    cache.box = box;
    cache.isValid = true;
    cache.changeCount = separator->getChangeCount();
    cache.outside = outsideOf(state());
    keepChild(box);
}

void SoBoundingBoxAction::visitShape(SoShape* shape)
{
    if (isVisible(state()))
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
    // Through a group in between it is no child of the separator that is open.
    if (!around.children || !getFrames().back().group->asSeparator()) {
        extend(box);
        return;
    }
    const auto place = static_cast<std::size_t>(getFrames().back().child);
    if (around.isAfresh) {
        passOthers(*around.children, place);
        around.children->boxes.push_back(placed(box));
        return;
    }
    around.children->boxes[place] = placed(box);
    around.children->chunks.refresh(xsg::BoundingBoxTree::chunkOf(place),
                                    [&](std::size_t i) { return around.children->boxes[i]; });
}

// The children up to this place that gave no box of their own, on a walk over all of them.
void SoBoundingBoxAction::passOthers(SoSeparator::ChildBoxes& children, std::size_t end)
{
    while (children.boxes.size() < end) {
        children.others.push_back(static_cast<std::uint32_t>(children.boxes.size()));
        children.boxes.emplace_back();
    }
}
