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
    static constexpr std::uint32_t None = WalkRecord::None;

    std::vector<RenderItem> items;        // in any order; some may be free
    std::vector<std::uint32_t> freeItems; // of them
    std::uint32_t firstItem = None;       // in the order of the walk
    std::uint32_t lastItem = None;
    /// Opaque items by draw state, then geometry, as they were when they were sorted: later changes are told
    /// by RenderChanges alone.
    std::vector<std::uint32_t> opaque;
    std::vector<std::uint32_t> transparent; // in any order
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
    bool isViewDependent = false;
    bool hasRepeats = false;
    bool isPart = false; // of the scene, which repeats more than a walk follows

    RenderChanges changes;
    WalkRecord record;
    std::size_t lights = 0;     // that are on, in all places
    std::size_t outOfOrder = 0; // items that have come or been regrouped since they were sorted

    void clear();
    /// Gives back what the lists of items and of the walk have grown beyond their contents.
    void fitMemory();
    /// Makes room for items that follow on `previous` in the order of the walk (None: that come first).
    /// Returns the first; the others have the numbers after it. They have to be filled in.
    std::uint32_t addItems(std::size_t count, std::uint32_t previous);
    /// Takes the item out; what it has used is to be released before.
    void removeItem(std::uint32_t item);
    /// Puts the items that are drawn into their orders.
    void sort();
    /// Brings the transparent items up to date after these have changed.
    void relistTransparent(const std::vector<std::uint32_t>& changed, std::size_t from);
    std::size_t getNumDrawn() const { return items.size() - freeItems.size(); }
    /// To be called with the state after a camera: keeps the first one, or the one that is wanted.
    void noteCamera(const SoState& state, const SoCamera* wanted);
    /// Appends what this node, which the record watches, or what is below it, has drawn.
    void collectItemsOf(std::uint64_t nodeId, std::vector<std::uint32_t>& itemsOfNode) const;

private:
    std::uint32_t takeItem();
    void link(std::uint32_t item, std::uint32_t previous);
    void rank(std::uint32_t item);
    void spreadRanks(std::uint32_t previous);
    void findCopies();
    std::uint32_t drawnAs(std::uint32_t item) const;
};

} // namespace xsg
