// SPDX-License-Identifier: MIT
#include <xsg/render/RenderList.h>

#include <xsg/nodes/cameras/SoCamera.h>

#include <algorithm>
#include <cstring>
#include <string_view>
#include <tuple>
#include <unordered_map>

namespace
{

constexpr std::uint64_t RankStep = std::uint64_t{1} << 32;

bool isSame(const xsg::RenderItem& a, const xsg::RenderItem& b)
{
    return a.geometry == b.geometry && a.drawState == b.drawState &&
           std::memcmp(&a.instance, &b.instance, sizeof a.instance) == 0;
}

std::size_t hashOf(const xsg::RenderItem& item)
{
    return std::hash<std::string_view>()(
        {reinterpret_cast<const char*>(item.instance.matrix), sizeof item.instance.matrix});
}

} // namespace

void xsg::RenderList::clear()
{
    items.clear();
    freeItems.clear();
    firstItem = lastItem = None;
    opaque.clear();
    transparent.clear();
    copies.clear();
    callbacks.clear();
    drawStates.clear();
    record.clear();
    box = {};
    changes = {};
    changes.all = true;
    camera = nullptr;
    cameraMatrix = {};
    lights = 0;
    isViewDependent = false;
    hasRepeats = false;
    isPart = false;
}

void xsg::RenderList::fitMemory()
{
    if (items.capacity() > items.size() + items.size() / 8)
        items.shrink_to_fit();
    record.fitMemory();
}

std::uint32_t xsg::RenderList::takeItem()
{
    if (freeItems.empty()) {
        items.emplace_back();
        return static_cast<std::uint32_t>(items.size() - 1);
    }
    const std::uint32_t item = freeItems.back();
    freeItems.pop_back();
    return item;
}

std::uint32_t xsg::RenderList::addItems(std::size_t count, std::uint32_t previous)
{
    const std::uint32_t first = count == 1 ? takeItem() : static_cast<std::uint32_t>(items.size());
    if (count != 1)
        items.resize(items.size() + count);
    for (std::uint32_t item = first; item < first + count; ++item) {
        link(item, previous);
        previous = item;
    }
    return first;
}

void xsg::RenderList::link(std::uint32_t item, std::uint32_t previous)
{
    std::uint32_t& before = previous == None ? firstItem : items[previous].next;
    items[item].previous = previous;
    items[item].next = before;
    std::uint32_t& after = before == None ? lastItem : items[before].previous;
    before = after = item;
    rank(item);
}

// Between those of its neighbours. At the end there is always more room.
void xsg::RenderList::rank(std::uint32_t item)
{
    const std::uint32_t previous = items[item].previous;
    const std::uint32_t next = items[item].next;
    const std::uint64_t low = previous == None ? 0 : items[previous].rank;
    if (next == None) {
        items[item].rank = low + RankStep;
        return;
    }
    if (items[next].rank - low < 2) {
        spreadRanks(previous);
        return;
    }
    const std::uint64_t step = std::max<std::uint64_t>(1, (items[next].rank - low) / 8);
    items[item].rank = low + step;
}

// Moves what follows `previous` on, until there is room again.
void xsg::RenderList::spreadRanks(std::uint32_t previous)
{
    constexpr std::uint64_t Room = std::uint64_t{1} << 20;
    std::uint64_t now = previous == None ? 0 : items[previous].rank;
    std::uint32_t item = previous == None ? firstItem : items[previous].next;
    do {
        items[item].rank = now += Room;
        item = items[item].next;
    } while (item != None && items[item].rank <= now + Room);
}

void xsg::RenderList::removeItem(std::uint32_t item)
{
    const bool isListed = items[item].isListed;
    const std::uint32_t previous = items[item].previous;
    const std::uint32_t next = items[item].next;
    (previous == None ? firstItem : items[previous].next) = next;
    (next == None ? lastItem : items[next].previous) = previous;
    items[item] = {};
    items[item].isListed = isListed;
    freeItems.push_back(item);
}

void xsg::RenderList::relistTransparent(const std::vector<std::uint32_t>& changed, std::size_t from)
{
    bool isAnyGone = false;
    for (std::size_t i = from; i < changed.size(); ++i) {
        RenderItem& item = items[changed[i]];
        const bool isListed = item.isDrawn() && item.isTransparent;
        if (isListed && !item.isListed)
            transparent.push_back(changed[i]);
        isAnyGone = isAnyGone || (!isListed && item.isListed);
        item.isListed = isListed;
    }
    const auto isGone = [&](std::uint32_t i) { return !items[i].isListed; };
    if (isAnyGone)
        transparent.erase(std::remove_if(transparent.begin(), transparent.end(), isGone), transparent.end());
}

// A group that holds another one twice, and so on level after level, would have thousands drawn in one place.
void xsg::RenderList::findCopies()
{
    copies.clear();
    if (!hasRepeats)
        return;
    std::unordered_multimap<std::size_t, std::uint32_t> known;
    for (std::uint32_t i = 0; i < items.size(); ++i) {
        if (!items[i].isRepeat || items[i].isTransparent || !items[i].isDrawn())
            continue;
        const std::size_t hash = hashOf(items[i]);
        const auto [begin, end] = known.equal_range(hash);
        const auto first =
            std::find_if(begin, end, [&](const auto& each) { return isSame(items[each.second], items[i]); });
        if (first != end)
            copies.push_back({i, first->second});
        else
            known.emplace(hash, i);
    }
}

std::uint32_t xsg::RenderList::drawnAs(std::uint32_t item) const
{
    const auto copy = std::lower_bound(copies.begin(), copies.end(), item,
                                       [](const Copy& each, std::uint32_t i) { return each.item < i; });
    return copy != copies.end() && copy->item == item ? copy->sameAs : item;
}

void xsg::RenderList::sort()
{
    outOfOrder = 0;
    opaque.clear();
    transparent.clear();
    findCopies();
    auto copy = copies.begin();
    for (std::uint32_t i = 0; i < items.size(); ++i) {
        if (copy != copies.end() && copy->item == i)
            ++copy;
        else if (items[i].isDrawn())
            (items[i].isTransparent ? transparent : opaque).push_back(i);
        items[i].isListed = items[i].isDrawn() && items[i].isTransparent;
    }
    const auto key = [&](std::uint32_t i) {
        // By the geometry's index buffer, since addresses would differ from run to run.
        return std::make_tuple(items[i].drawState, items[i].geometry->indices.get(), items[i].rank);
    };
    const auto isBefore = [&](std::uint32_t a, std::uint32_t b) { return key(a) < key(b); };
    // They mostly are in order already.
    if (!std::is_sorted(opaque.begin(), opaque.end(), isBefore))
        std::sort(opaque.begin(), opaque.end(), isBefore);
}

void xsg::RenderList::noteCamera(const SoState& state, const SoCamera* wanted)
{
    if (wanted ? state.camera != wanted : camera && camera != state.camera)
        return;
    camera = state.camera;
    cameraMatrix = state.modelMatrix;
}

void xsg::RenderList::collectItemsOf(std::uint64_t nodeId, std::vector<std::uint32_t>& itemsOfNode) const
{
    for (const std::uint32_t place : record.getPlaces(nodeId)) {
        record.visitIn(place, [&](const WalkRecord::Entry& entry) {
            for (std::uint32_t item = entry.first; item < entry.first + entry.itemCount; ++item) {
                if (items[item].isDrawn())
                    itemsOfNode.push_back(drawnAs(item));
            }
            return false;
        });
    }
}
