// SPDX-License-Identifier: MIT
#include <xsg/render/RenderList.h>

#include <xsg/nodes/cameras/SoCamera.h>

#include <algorithm>
#include <tuple>

void xsg::RenderList::clear()
{
    items.clear();
    opaque.clear();
    transparent.clear();
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
}

void xsg::RenderList::sort()
{
    outOfOrder = 0;
    opaque.clear();
    transparent.clear();
    for (std::uint32_t i = 0; i < items.size(); ++i) {
        if (items[i].isDrawn())
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
                itemsOfNode.push_back(item);
        }
    });
}
