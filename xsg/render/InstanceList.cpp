// SPDX-License-Identifier: MIT
#include <xsg/render/InstanceList.h>

#include <xsg/frames/SoFramePhase.h>

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
                               const RenderChanges& changes)
{
    if (changes.all || order != m_order) {
        setOrder(order, items, 0);
        return;
    }
    for (const std::uint32_t i : changes.regrouped) {
        if (i < m_places.size())
            regroup(items, m_places[i]);
    }
    if (!changes.items.empty())
        uploadChanged(items, changes.items);
}

void xsg::InstanceList::setOrder(const std::vector<std::uint32_t>& order,
                                 const std::vector<RenderItem>& items, std::size_t spare)
{
    for (const std::uint32_t i : m_order) {
        if (i < m_places.size())
            m_places[i] = Nowhere;
    }
    m_size = m_end = static_cast<std::uint32_t>(order.size());
    m_order.clear();
    m_order.reserve(m_end + spare);
    m_order = order;
    m_order.resize(m_end + spare, Nowhere);
    m_hasChunks = false;
    collectPlaces(items.size());
    collectBatches(items);
    uploadAll(items);
}

void xsg::InstanceList::collectPlaces(std::size_t itemCount)
{
    m_places.resize(m_order.empty() ? 0 : itemCount, Nowhere);
    for (std::uint32_t place = 0; place < m_end; ++place)
        m_places[m_order[place]] = place;
}

void xsg::InstanceList::collectBatches(const std::vector<RenderItem>& items)
{
    m_batches.clear();
    for (std::uint32_t place = 0; place < m_end; ++place) {
        if (!isLikeBefore(items, place))
            m_batches.push_back({place, place});
        m_batches.back().end = place + 1;
    }
}

// Whether one call can draw what is at this place together with what is before it.
bool xsg::InstanceList::isLikeBefore(const std::vector<RenderItem>& items, std::uint32_t place) const
{
    if (place == 0 || place >= m_end || m_order[place - 1] == Nowhere || m_order[place] == Nowhere)
        return false;
    const RenderItem& before = getItem(items, place - 1);
    const RenderItem& item = getItem(items, place);
    return before.geometry == item.geometry && before.drawState == item.drawState;
}

void xsg::InstanceList::setBelongs(std::uint32_t item, bool belongs)
{
    std::uint32_t& place = m_places[item];
    if (belongs == (place != Nowhere))
        return;
    if (!belongs) {
        leaveBatch(place);
        m_order[place] = Nowhere;
        m_holes.push_back(place);
        place = Nowhere;
        --m_size;
        return;
    }
    if (m_end == m_order.size()) {
        m_order.resize(m_order.size() + m_order.size() / 4 + 64, Nowhere);
        m_hasGrown = true;
    }
    place = m_end++;
    m_order[place] = item;
    m_batches.push_back({place, place + 1});
    ++m_size;
}

// Takes the place out of its batch, which may leave two.
void xsg::InstanceList::leaveBatch(std::uint32_t place)
{
    const auto batch = std::upper_bound(m_batches.begin(), m_batches.end(), place,
                                        [](std::uint32_t at, const Run& run) { return at < run.end; });
    if (batch == m_batches.end() || place < batch->first)
        return;
    const Run before{batch->first, place};
    batch->first = place + 1;
    if (batch->first < batch->end) {
        if (before.first < before.end)
            m_batches.insert(batch, before);
    } else if (before.first < before.end) {
        *batch = before;
    } else {
        m_batches.erase(batch);
    }
}

// Puts the place into a batch of its own and joins that with its neighbours where they are alike now. A
// neighbour that has changed too may still be in the wrong batch here; it is among the changed items itself,
// so this function is called for it as well.
void xsg::InstanceList::regroup(const std::vector<RenderItem>& items, std::uint32_t place)
{
    if (place == Nowhere)
        return;
    leaveBatch(place);
    const auto isBehind = [](const Run& run, std::uint32_t at) { return run.first < at; };
    auto after = std::lower_bound(m_batches.begin(), m_batches.end(), place, isBehind);
    const bool joinsAfter =
        after != m_batches.end() && after->first == place + 1 && isLikeBefore(items, place + 1);
    const bool joinsBefore =
        after != m_batches.begin() && std::prev(after)->end == place && isLikeBefore(items, place);
    if (joinsAfter)
        after->first = place;
    else
        after = m_batches.insert(after, {place, place + 1});
    if (joinsBefore) {
        after->first = std::prev(after)->first;
        m_batches.erase(std::prev(after));
    }
}

// Piece by piece, so that there is no second copy of all of it on the way.
void xsg::InstanceList::uploadAll(const std::vector<RenderItem>& items)
{
    constexpr std::size_t Piece = 4096;
    const SoFramePhase phase(SoFrame::Upload);
    if (m_order.empty())
        return;
    glBindBuffer(GL_ARRAY_BUFFER, m_buffer.get());
    glBufferData(GL_ARRAY_BUFFER, bytesOf(m_order.size()), nullptr, GL_DYNAMIC_DRAW);
    for (std::size_t first = 0; first < m_end; first += m_staging.size()) {
        m_staging.clear();
        const std::size_t end = std::min<std::size_t>(m_end, first + Piece);
        for (std::size_t place = first; place < end; ++place)
            m_staging.push_back(m_order[place] == Nowhere ? InstanceData() : getItem(items, place).instance);
        glBufferSubData(GL_ARRAY_BUFFER, bytesOf(first), bytesOf(m_staging.size()), m_staging.data());
    }
    m_hasGrown = false;
    ++m_uploads;
    m_uploadedBytes += bytesOf(m_end);
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
    refreshChunks(items);
    // Many small uploads cost more than one large one.
    if (m_hasGrown || (m_changedPlaces.size() > 64 && m_changedPlaces.size() > m_size / 4)) {
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

void xsg::InstanceList::refreshChunks(const std::vector<RenderItem>& items)
{
    m_hasChunks = m_hasChunks && !m_hasGrown;
    std::size_t last = m_chunks.getNumChunks();
    const auto refresh = [&](const std::vector<std::uint32_t>& places) {
        for (const std::uint32_t place : places) {
            if (m_hasChunks && BoundingBoxTree::chunkOf(place) != last)
                m_chunks.refresh(last = BoundingBoxTree::chunkOf(place),
                                 [&](std::size_t at) { return boxAt(items, at); });
        }
    };
    refresh(m_changedPlaces);
    refresh(m_holes);
    m_holes.clear();
}

SbBox3f xsg::InstanceList::boxAt(const std::vector<RenderItem>& items, std::size_t place) const
{
    return m_order[place] == Nowhere ? SbBox3f() : sightBoxOf(items[m_order[place]]);
}

void xsg::InstanceList::findVisible(const Frustum& frustum, const std::vector<RenderItem>& items,
                                    std::vector<Run>& visible)
{
    if (!std::exchange(m_hasChunks, true))
        m_chunks.build(m_order.size(), [&](std::size_t at) { return boxAt(items, at); });
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
                          if (frustum.mayShow(boxAt(items, place)))
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
    m_end = m_size = 0;
    m_hasGrown = false;
    m_holes.clear();
    m_places.clear();
    m_batches.clear();
    m_hasChunks = false;
}
