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
    hasLights = false;
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
    }
    const auto key = [&](std::uint32_t i) {
        // By the geometry's index buffer, since addresses would differ from run to run.
        return std::make_tuple(items[i].drawState, items[i].geometry->indices.get(), i);
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
    record.forEachPlaceOf(nodeId, items.size(), [&](std::uint32_t first, std::uint32_t end) {
        for (std::uint32_t item = first; item < end; ++item) {
            if (items[item].isDrawn())
                itemsOfNode.push_back(drawnAs(item));
        }
    });
}
