// SPDX-License-Identifier: MIT
#include <xsg/render/InstanceList.h>

#include <algorithm>

namespace
{

GLsizeiptr bytesOf(std::size_t instances)
{
    return static_cast<GLsizeiptr>(instances * sizeof(xsg::InstanceData));
}

// Text keeps its size on the screen, so its box says little about what of it is seen.
SbBox3f sightBoxOf(const xsg::RenderItem& item)
{
    constexpr float Far = 1e18F;
    return item.geometry->isScreenSpace ? SbBox3f(-Far, -Far, -Far, Far, Far, Far) : item.box;
}

} // namespace

void xsg::InstanceList::update(const std::vector<std::uint32_t>& order, const std::vector<RenderItem>& items,
                               const RenderChanges& changes, bool isSameOrder)
{
    if (changes.all || (!isSameOrder && order != m_order)) {
        for (const std::uint32_t i : m_order) {
            if (i < m_places.size())
                m_places[i] = Nowhere;
        }
        m_order = order;
        m_hasChunks = false;
        collectPlaces(items.size());
        collectBatches(items);
        uploadAll(items);
        return;
    }
    if (changes.orders)
        collectBatches(items);
    else
        regroup(items, changes.regrouped);
    if (!changes.items.empty())
        uploadChanged(items, changes.items);
}

void xsg::InstanceList::collectPlaces(std::size_t itemCount)
{
    m_places.resize(m_order.empty() ? 0 : itemCount, Nowhere);
    for (std::uint32_t place = 0; place < getSize(); ++place)
        m_places[m_order[place]] = place;
}

void xsg::InstanceList::collectBatches(const std::vector<RenderItem>& items)
{
    m_batches.clear();
    for (std::uint32_t place = 0; place < getSize(); ++place) {
        if (!isLikeBefore(items, place))
            m_batches.push_back({place, place});
        m_batches.back().end = place + 1;
    }
}

// Whether one call can draw what is at this place together with what is before it.
bool xsg::InstanceList::isLikeBefore(const std::vector<RenderItem>& items, std::uint32_t place) const
{
    if (place == 0)
        return false;
    const RenderItem& before = getItem(items, place - 1);
    const RenderItem& item = getItem(items, place);
    return before.geometry == item.geometry && before.drawState == item.drawState;
}

void xsg::InstanceList::regroup(const std::vector<RenderItem>& items,
                                const std::vector<std::uint32_t>& changed)
{
    for (const std::uint32_t i : changed) {
        if (i < m_places.size() && m_places[i] != Nowhere)
            regroupAt(items, m_places[i]);
    }
}

// Cuts the batch on both sides of the place and joins what is alike now. A neighbour that has changed too may
// still be in the wrong batch here; it is among the changed items itself, so this function is called for it
// as well.
void xsg::InstanceList::regroupAt(const std::vector<RenderItem>& items, std::uint32_t place)
{
    for (const std::uint32_t cut : {place, place + 1}) {
        const auto batch = std::upper_bound(m_batches.begin(), m_batches.end(), cut,
                                            [](std::uint32_t at, const Run& run) { return at < run.end; });
        if (batch == m_batches.end() || cut == 0)
            continue;
        const bool isJoined = isLikeBefore(items, cut);
        if (batch->first < cut && !isJoined) {
            const std::uint32_t first = std::exchange(batch->first, cut);
            m_batches.insert(batch, {first, cut});
        } else if (batch->first == cut && isJoined) {
            batch->first = std::prev(batch)->first;
            m_batches.erase(std::prev(batch));
        }
    }
}

// Piece by piece, so that there is no second copy of all of it on the way.
void xsg::InstanceList::uploadAll(const std::vector<RenderItem>& items)
{
    constexpr std::size_t Piece = 4096;
    if (m_order.empty())
        return;
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.get());
    glBufferData(GL_ARRAY_BUFFER, bytesOf(m_order.size()), nullptr, GL_DYNAMIC_DRAW);
    for (std::size_t first = 0; first < m_order.size(); first += m_staging.size()) {
        m_staging.clear();
        const std::size_t end = std::min(m_order.size(), first + Piece);
        for (std::size_t place = first; place < end; ++place)
            m_staging.push_back(items[m_order[place]].instance);
        glBufferSubData(GL_ARRAY_BUFFER, bytesOf(first), bytesOf(m_staging.size()), m_staging.data());
    }
    ++m_uploads;
    m_uploadedBytes += bytesOf(m_order.size());
}

void xsg::InstanceList::uploadChanged(const std::vector<RenderItem>& items,
                                      const std::vector<std::uint32_t>& changed)
{
    m_changedPlaces.clear();
    for (const std::uint32_t i : changed) {
        if (i < m_places.size() && m_places[i] != Nowhere)
            m_changedPlaces.push_back(m_places[i]);
    }
    std::sort(m_changedPlaces.begin(), m_changedPlaces.end());
    if (m_hasChunks) {
        const auto boxAt = [&](std::size_t place) { return sightBoxOf(items[m_order[place]]); };
        std::size_t last = m_chunks.getNumChunks();
        for (const std::uint32_t place : m_changedPlaces) {
            if (BoundingBoxTree::chunkOf(place) != last)
                m_chunks.refresh(last = BoundingBoxTree::chunkOf(place), boxAt);
        }
    }
    // Many small uploads cost more than one large one.
    if (m_changedPlaces.size() > 64 && m_changedPlaces.size() > m_order.size() / 4) {
        uploadAll(items);
        return;
    }
    if (!m_changedPlaces.empty())
        glBindBuffer(GL_ARRAY_BUFFER, m_buffer.get());
    for (std::size_t from = 0; from < m_changedPlaces.size();) {
        const std::uint32_t first = m_changedPlaces[from];
        m_staging.clear();
        for (; from < m_changedPlaces.size() && m_changedPlaces[from] <= first + m_staging.size(); ++from) {
            if (m_changedPlaces[from] == first + m_staging.size()) // else listed twice
                m_staging.push_back(getItem(items, m_changedPlaces[from]).instance);
        }
        glBufferSubData(GL_ARRAY_BUFFER, bytesOf(first), bytesOf(m_staging.size()), m_staging.data());
        ++m_uploads;
        m_uploadedBytes += bytesOf(m_staging.size());
    }
}

void xsg::InstanceList::findVisible(const Frustum& frustum, const std::vector<RenderItem>& items,
                                    std::vector<Run>& visible)
{
    const auto boxAt = [&](std::size_t place) { return sightBoxOf(items[m_order[place]]); };
    if (!std::exchange(m_hasChunks, true))
        m_chunks.build(m_order.size(), boxAt);
    visible.clear();
    const auto add = [&](std::size_t first, std::size_t end) {
        if (!visible.empty() && visible.back().end == first)
            visible.back().end = static_cast<std::uint32_t>(end);
        else
            visible.push_back({static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(end)});
    };
    m_chunks.find([&](const SbBox3f& box) { return frustum.classify(box); },
                  [&](std::size_t first, std::size_t end, bool isEverything) {
                      if (isEverything)
                          add(first, end);
                      for (std::size_t place = first; !isEverything && place < end; ++place) {
                          if (frustum.mayShow(boxAt(place)))
                              add(place, place + 1);
                      }
                  });
}

void xsg::InstanceList::findPlaces(const std::vector<std::uint32_t>& ofItems, std::vector<Run>& runs) const
{
    std::vector<std::uint32_t> places;
    for (const std::uint32_t i : ofItems) {
        if (i < m_places.size() && m_places[i] != Nowhere)
            places.push_back(m_places[i]);
    }
    std::sort(places.begin(), places.end());
    runs.clear();
    for (const std::uint32_t place : places) {
        if (runs.empty() || runs.back().end < place)
            runs.push_back({place, place});
        runs.back().end = place + 1;
    }
}

void xsg::InstanceList::bind(std::uint32_t place)
{
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.get());
    for (GLuint i = 0; i < 8; ++i) {
        const std::size_t offset = place * sizeof(InstanceData) + i * 4 * sizeof(float);
        glVertexAttribPointer(InstanceAttribute + i, 4, GL_FLOAT, GL_FALSE, sizeof(InstanceData),
                              reinterpret_cast<const void*>(offset));
    }
}

void xsg::InstanceList::release()
{
    m_buffer.release();
    m_order.clear();
    m_places.clear();
    m_batches.clear();
    m_hasChunks = false;
}
