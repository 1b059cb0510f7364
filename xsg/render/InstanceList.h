// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/BoundingBoxTree.h>
#include <xsg/render/Frustum.h>
#include <xsg/render/RenderItem.h>

namespace xsg
{

/// Neighbours in an order.
struct Run {
    std::uint32_t first = 0;
    std::uint32_t end = 0;
};

/// Items in the order of drawing. Their instance data lies in OpenGL's memory and is uploaded again only
/// where it changed.
class InstanceList
{
public:
    /// Brings the list to this order of items; `changes` are all changes to the items since the last call.
    void update(const std::vector<std::uint32_t>& order, const std::vector<RenderItem>& items,
                const RenderChanges& changes);
    /// The same for a list that is known by its changes: without `changes.all` or `changes.orders`, those of
    /// the changed items that belong in it and are not there yet get a place behind the others, and those
    /// that do not belong in it any more leave a hole.
    template <class Belongs>
    void follow(const std::vector<std::uint32_t>& order, const std::vector<RenderItem>& items,
                const RenderChanges& changes, const Belongs& belongs)
    {
        if (changes.all || changes.orders) {
            setOrder(order, items, order.size() / 8 + 64);
            return;
        }
        if (changes.items.empty())
            return;
        m_places.resize(std::max(m_places.size(), items.size()), Nowhere);
        for (const std::uint32_t i : changes.items)
            setBelongs(i, belongs(items[i]));
        for (const std::uint32_t i : changes.regrouped)
            regroup(items, m_places[i]);
        uploadChanged(items, changes.items);
    }
    bool isEmpty() const { return m_size == 0; }
    std::uint32_t getSize() const { return m_size; }

    /// Neighbours that share draw state and geometry, so that one call can draw them.
    const std::vector<Run>& getBatches() const { return m_batches; }
    /// What may be in sight, in order.
    void findVisible(const Frustum& frustum, const std::vector<RenderItem>& items, std::vector<Run>& visible);
    /// Where these items stand in the order, as runs; items that do not are left out.
    void findPlaces(const std::vector<std::uint32_t>& ofItems, std::vector<Run>& runs) const;
    /// Calls `draw(part)` with what one call can draw of these runs.
    template <class Draw>
    void forEachPart(const std::vector<Run>& runs, const Draw& draw) const
    {
        auto batch = m_batches.begin();
        for (Run run : runs) {
            while (run.first < run.end) {
                while (batch->end <= run.first)
                    ++batch;
                const std::uint32_t end = std::min(run.end, batch->end);
                draw(Run{run.first, end});
                run.first = end;
            }
        }
    }
    const RenderItem& getItem(const std::vector<RenderItem>& items, std::size_t place) const
    {
        return items[m_order[place]];
    }
    /// Lets the vertex array that is bound read its instances from this place on.
    void bind(std::uint32_t place);
    void release();

    std::int64_t getUploads() const { return m_uploads; }
    std::int64_t getUploadedBytes() const { return m_uploadedBytes; }

private:
    void setOrder(const std::vector<std::uint32_t>& order, const std::vector<RenderItem>& items,
                  std::size_t spare);
    void setBelongs(std::uint32_t item, bool belongs);
    void uploadAll(const std::vector<RenderItem>& items);
    void uploadChanged(const std::vector<RenderItem>& items, const std::vector<std::uint32_t>& changed);
    void collectBatches(const std::vector<RenderItem>& items);
    void regroup(const std::vector<RenderItem>& items, std::uint32_t place);
    void leaveBatch(std::uint32_t place);
    bool isLikeBefore(const std::vector<RenderItem>& items, std::uint32_t place) const;
    void collectPlaces(std::size_t itemCount);
    void refreshChunks(const std::vector<RenderItem>& items);
    SbBox3f boxAt(const std::vector<RenderItem>& items, std::size_t place) const;

    static constexpr std::uint32_t Nowhere = 0xFFFFFFFF;
    std::vector<std::uint32_t> m_order;  // with holes, which are Nowhere, and room at its end
    std::uint32_t m_end = 0;             // of what is used of it
    std::uint32_t m_size = 0;            // without the holes
    bool m_hasGrown = false;             // and is larger than OpenGL's buffer
    std::vector<std::uint32_t> m_holes;  // that their chunks do not know yet
    std::vector<std::uint32_t> m_places; // of each item in the order, or Nowhere
    std::vector<Run> m_batches;
    BoundingBoxTree m_chunks;
    bool m_hasChunks = false;
    GlBuffer m_buffer;
    std::vector<InstanceData> m_staging;
    std::vector<std::uint32_t> m_changedPlaces;
    std::int64_t m_uploads = 0;
    std::int64_t m_uploadedBytes = 0;
};

} // namespace xsg
