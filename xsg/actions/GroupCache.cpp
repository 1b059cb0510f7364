// SPDX-License-Identifier: MIT
#include <xsg/actions/GroupCache.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/nodes/properties/SoDrawStyle.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <algorithm>

xsg::BoxInputs xsg::BoxInputs::of(const SoState& state)
{
    const bool isVisible = !state.drawStyle || state.drawStyle->isVisible();
    if (!state.points)
        return {0, 0, isVisible};
    return {state.points->getNodeId(), state.points->getChangeCount(), isVisible};
}

xsg::GroupCache& xsg::GroupCache::of(SoGroup& group)
{
    const bool isLarge = group.getNumChildren() >= ManyChildren;
    GroupCache* known = find(group);
    if (known && (known->asLarge() != nullptr) == isLarge)
        return *known;
    std::unique_ptr<GroupCache> fitting;
    if (isLarge)
        fitting = std::make_unique<LargeGroupCache>(group.getChangeCount());
    else
        fitting = std::make_unique<GroupCache>();
    GroupCache& made = *fitting;
    group.setExtension(std::move(fitting));
    return made;
}

void xsg::GroupCache::setBox(const SbBox3f& box, const SoGroup& group, const BoxInputs& inputs)
{
    m_box = box;
    m_inputs = inputs;
    m_changeCount = group.getChangeCount();
    m_isValid = true;
}

xsg::LargeGroupCache* xsg::LargeGroupCache::find(SoGroup& group)
{
    GroupCache* known = GroupCache::find(group);
    return known ? known->asLarge() : nullptr;
}

void xsg::LargeGroupCache::noteChange(const SoNode* child, std::uint32_t changeCount)
{
    m_log.add(child, changeCount);
}

void xsg::LargeGroupCache::noteChildren(const SoChildrenChange& change)
{
    m_places.note(change);
    m_childrenLog.add(change);
}

bool xsg::LargeGroupCache::findChanged(const SoGroup& group, std::uint32_t since,
                                       std::vector<std::uint32_t>& places)
{
    std::vector<const SoNode*> changed;
    if (!m_log.collectSince(since, changed))
        return false;
    // The group itself changed, so that the others may have been destroyed.
    if (std::find(changed.begin(), changed.end(), nullptr) != changed.end())
        return false;
    findPlaces(group, changed, places);
    return true;
}

bool xsg::LargeGroupCache::findChanged(const SoGroup& group, std::uint32_t since,
                                       std::vector<SoChildrenChange>& changes,
                                       std::vector<std::uint32_t>& places)
{
    std::vector<const SoNode*> changed;
    if (!m_childrenLog.collectSince(since, group.getChangeCount(), changes) ||
        !m_log.collectSince(since, changed))
        return false;
    changed.erase(std::remove(changed.begin(), changed.end(), nullptr), changed.end());
    findPlaces(group, changed, places);
    return true;
}

// Those that are children no more are not found; where another one has taken such a child's address, that one
// is found for nothing.
void xsg::LargeGroupCache::findPlaces(const SoGroup& group, const std::vector<const SoNode*>& changed,
                                      std::vector<std::uint32_t>& places)
{
    for (const SoNode* child : changed)
        m_places.find(group.getChildren(), child, places);
    std::sort(places.begin(), places.end());
}

void xsg::mergePlaces(std::vector<std::uint32_t>& places, const std::vector<std::uint32_t>& more)
{
    const auto middle = static_cast<std::ptrdiff_t>(places.size());
    places.insert(places.end(), more.begin(), more.end());
    std::inplace_merge(places.begin(), places.begin() + middle, places.end());
}
