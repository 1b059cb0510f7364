// SPDX-License-Identifier: MIT
// Turns indices, counts and plain lists of points into corners, leaving out what names a point that is not
// there.
#pragma once

#include <xsg/fields/SoMFInt32.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace xsg
{

/// Appends each group of `size` indices that lies wholly within the points, and the number of the group to
/// `faces`.
inline void appendGroups(const SoMFInt32& index, std::size_t size, std::uint32_t pointCount,
                         std::vector<std::uint32_t>& out, std::vector<std::uint32_t>& faces)
{
    const std::int32_t* at = index.getValues();
    const std::size_t groups = static_cast<std::size_t>(index.getNum()) / size;
    const auto inside = [&](std::int32_t i) { return i >= 0 && static_cast<std::uint32_t>(i) < pointCount; };
    out.reserve(groups * size);
    for (std::size_t group = 0; group < groups; ++group, at += size) {
        if (!std::all_of(at, at + size, inside))
            continue;
        for (std::size_t i = 0; i < size; ++i)
            out.push_back(static_cast<std::uint32_t>(at[i]));
        faces.push_back(static_cast<std::uint32_t>(group));
    }
}

/// Every point in order, as far as groups of `size` are full.
inline void appendAll(std::uint32_t size, std::uint32_t pointCount, std::vector<std::uint32_t>& out)
{
    for (std::uint32_t i = 0; i < pointCount - pointCount % size; ++i)
        out.push_back(i);
}

/// The corners of a line through `count` points from `first` on: two for each piece.
inline void appendLine(std::uint32_t first, std::uint32_t count, std::uint32_t line,
                       std::vector<std::uint32_t>& out, std::vector<std::uint32_t>& faces)
{
    for (std::uint32_t i = first; i + 1 < first + count; ++i) {
        out.insert(out.end(), {i, i + 1});
        faces.push_back(line);
    }
}

/// The corners of a strip of triangles: every second one is turned over, so that all show the same side.
inline void appendStrip(std::uint32_t first, std::uint32_t count, std::uint32_t /*strip*/,
                        std::vector<std::uint32_t>& out, std::vector<std::uint32_t>& faces)
{
    for (std::uint32_t i = 0; i + 2 < count; ++i) {
        const std::uint32_t a = first + i;
        out.insert(out.end(), {a + i % 2, a + 1 - i % 2, a + 2});
        faces.push_back(static_cast<std::uint32_t>(faces.size()));
    }
}

/// Calls append(first, count, number) for each run of points that the counts make; no counts make one run of
/// all.
template <class Append>
void forEachRun(const SoMFInt32& counts, std::uint32_t pointCount, Append append)
{
    if (counts.getNum() == 0) {
        append(0U, pointCount, 0U);
        return;
    }
    std::uint32_t first = 0;
    for (int run = 0; run < counts.getNum() && first < pointCount; ++run) {
        const auto wanted = static_cast<std::uint32_t>(std::max(counts[run], 0));
        const std::uint32_t count = std::min(wanted, pointCount - first);
        append(first, count, static_cast<std::uint32_t>(run));
        first += count;
    }
}

/// The same for lists of indices in which a negative one ends a run. A run that names a missing point is left
/// out.
template <class Append>
void appendIndexedRuns(const SoMFInt32& index, std::uint32_t pointCount, Append append,
                       std::vector<std::uint32_t>& out, std::vector<std::uint32_t>& faces)
{
    std::vector<std::uint32_t> run;
    std::vector<std::uint32_t> places;
    std::uint32_t number = 0;
    bool good = true;
    const auto finish = [&] {
        places.clear();
        if (good)
            append(0, static_cast<std::uint32_t>(run.size()), number, places, faces);
        for (const std::uint32_t place : places)
            out.push_back(run[place]);
        ++number;
        run.clear();
        good = true;
    };
    for (int i = 0; i < index.getNum(); ++i) {
        if (index[i] < 0) {
            finish();
            continue;
        }
        good = good && static_cast<std::uint32_t>(index[i]) < pointCount;
        run.push_back(static_cast<std::uint32_t>(index[i]));
    }
    finish();
}

} // namespace xsg
