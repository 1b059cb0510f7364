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
    /// `isSameOrder`: the order is known to be the one of the last call, and is not compared.
    void update(const std::vector<std::uint32_t>& order, const std::vector<RenderItem>& items,
                const RenderChanges& changes, bool isSameOrder = false);
    bool isEmpty() const { return m_order.empty(); }
    std::uint32_t getSize() const { return static_cast<std::uint32_t>(m_order.size()); }

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
    const RenderItem& getItem(const std::vector<RenderItem>& items, std::uint32_t place) const
    {
        return items[m_order[place]];
    }
    /// Lets the vertex array that is bound read its instances from this place on.
    void bind(std::uint32_t place);
    void release();

    std::int64_t getUploads() const { return m_uploads; }
    std::int64_t getUploadedBytes() const { return m_uploadedBytes; }

private:
    void uploadAll(const std::vector<RenderItem>& items);
    void uploadChanged(const std::vector<RenderItem>& items, const std::vector<std::uint32_t>& changed);
    void collectBatches(const std::vector<RenderItem>& items);
    void regroup(const std::vector<RenderItem>& items, const std::vector<std::uint32_t>& changed);
    void regroupAt(const std::vector<RenderItem>& items, std::uint32_t place);
    bool isLikeBefore(const std::vector<RenderItem>& items, std::uint32_t place) const;
    void collectPlaces(std::size_t itemCount);

    static constexpr std::uint32_t Nowhere = 0xFFFFFFFF;
    std::vector<std::uint32_t> m_order;
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
