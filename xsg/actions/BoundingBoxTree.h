// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbBox.h>

#include <algorithm>
#include <vector>

namespace xsg
{

/// Boxes around runs of neighbours, around runs of those runs, and so on up to the whole: a few of them
/// suffice to search a long list, and a change in the list costs only the boxes above it.
class BoundingBoxTree
{
public:
    static constexpr std::size_t Size = 64; // neighbours in a run

    /// `boxOf(i)` gives the box of each of `count`.
    template <class BoxOf>
    void build(std::size_t count, const BoxOf& boxOf)
    {
        m_count = count;
        m_levels.clear();
        for (std::size_t below = count; below > 0 && (m_levels.empty() || below > 1);) {
            below = (below + Size - 1) / Size;
            m_levels.emplace_back(below);
            for (std::size_t run = 0; run < below; ++run)
                refreshRun(m_levels.size() - 1, run, boxOf);
        }
    }
    /// More places follow.
    template <class BoxOf>
    void grow(std::size_t count, const BoxOf& boxOf)
    {
        if (m_levels.empty() || count / 2 > m_count)
            return build(count, boxOf);
        const std::size_t firstNew = m_count;
        m_count = count;
        std::size_t below = count;
        for (std::size_t level = 0; level == 0 || below > 1; ++level) {
            below = (below + Size - 1) / Size;
            const bool isNewLevel = level == m_levels.size();
            if (isNewLevel)
                m_levels.emplace_back();
            m_levels[level].resize(below);
            if (isNewLevel) {
                for (std::size_t run = 0; run < below; ++run)
                    refreshRun(level, run, boxOf);
            }
        }
        for (std::size_t chunk = firstNew / Size; chunk < getNumChunks(); ++chunk)
            refresh(chunk, boxOf);
    }
    std::size_t getSize() const { return m_count; }
    /// The run that a place lies in.
    static std::size_t chunkOf(std::size_t place) { return place / Size; }
    /// After the box of a place in this run has changed.
    template <class BoxOf>
    void refresh(std::size_t chunk, const BoxOf& boxOf)
    {
        for (std::size_t level = 0; level < m_levels.size(); ++level, chunk /= Size)
            refreshRun(level, chunk, boxOf);
    }

    std::size_t getNumChunks() const { return m_levels.empty() ? 0 : m_levels.front().size(); }
    SbBox3f getWhole() const { return m_levels.empty() ? SbBox3f() : m_levels.back().front(); }

    /// How much of what is in a box is looked for.
    enum class Found { Nothing, Some, Everything };
    /// Calls `take(first, end, isEverything)`, in order, with the places where something may be that is
    /// looked for. `classify(box)` gives a Found.
    template <class Classify, class Take>
    void find(const Classify& classify, const Take& take) const
    {
        if (!m_levels.empty())
            findIn(m_levels.size() - 1, 0, classify, take);
    }

private:
    template <class BoxOf>
    void refreshRun(std::size_t level, std::size_t run, const BoxOf& boxOf)
    {
        SbBox3f box;
        const std::size_t end = std::min((run + 1) * Size, level == 0 ? m_count : m_levels[level - 1].size());
        for (std::size_t i = run * Size; i < end; ++i) {
            if (level == 0)
                box.extendBy(boxOf(i));
            else
                box.extendBy(m_levels[level - 1][i]);
        }
        m_levels[level][run] = box;
    }
    template <class Classify, class Take>
    void findIn(std::size_t level, std::size_t run, const Classify& classify, const Take& take) const
    {
        const Found found = classify(m_levels[level][run]);
        if (found == Found::Nothing)
            return;
        if (level > 0 && found == Found::Some) {
            const std::size_t end = std::min((run + 1) * Size, m_levels[level - 1].size());
            for (std::size_t i = run * Size; i < end; ++i)
                findIn(level - 1, i, classify, take);
            return;
        }
        std::size_t width = Size;
        for (std::size_t i = 0; i < level; ++i)
            width *= Size;
        take(run * width, std::min(m_count, (run + 1) * width), found == Found::Everything);
    }

    std::vector<std::vector<SbBox3f>> m_levels; // of runs of places, of runs of those, ..., of the whole
    std::size_t m_count = 0;
};

} // namespace xsg
