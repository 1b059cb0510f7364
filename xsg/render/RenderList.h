// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/BoundingBoxTree.h>
#include <xsg/render/DrawStateTable.h>
#include <xsg/render/RenderItem.h>
#include <xsg/render/WalkRecord.h>

namespace xsg
{

/// A scene flattened into what is drawn: plain data, written by RenderListBuilder and RenderListPatcher and
/// read by the renderer. Valid as long as the scene does not change; RenderListUpdater keeps it up to date.
struct RenderList {
    std::vector<RenderItem> items;
    /// Items by draw state, then geometry; except for a few that have changed since they were sorted.
    std::vector<std::uint32_t> opaque;
    std::vector<std::uint32_t> transparent;
    /// Repeated opaque items that another one covers wholly, being the same in the same place, and are not
    /// drawn; in order.
    struct Copy {
        std::uint32_t item;
        std::uint32_t sameAs;
    };
    std::vector<Copy> copies;
    std::vector<CallbackItem> callbacks;
    DrawStateTable drawStates;
    BoundingBoxTree boxes; // of the items
    SbBox3f box;           // around all of them
    const SoCamera* camera = nullptr;
    SbMatrix cameraMatrix; // from the coordinates at the camera to the world's
    bool hasLights = false;
    bool isViewDependent = false;
    bool hasRepeats = false;
    bool isPart = false; // of the scene, which repeats more than a walk follows

    RenderChanges changes;
    WalkRecord record;
    std::size_t statesWhenBuilt = 0;
    std::size_t outOfOrder = 0; // items that have been regrouped since they were sorted

    void clear();
    /// Gives back what the lists of items and of the walk have grown beyond their contents.
    void fitMemory();
    /// Puts the items that are drawn into their orders.
    void sort();
    /// To be called with the state after a camera: keeps the first one, or the one that is wanted.
    void noteCamera(const SoState& state, const SoCamera* wanted);
    /// Appends what the node, or what is below it, has drawn.
    void collectItemsOf(std::uint64_t nodeId, std::vector<std::uint32_t>& itemsOfNode) const;

private:
    void findCopies();
    std::uint32_t drawnAs(std::uint32_t item) const;
};

} // namespace xsg
