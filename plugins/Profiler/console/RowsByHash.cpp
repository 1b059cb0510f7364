// SPDX-License-Identifier: MIT
#include "console/RowsByHash.h"

#include <algorithm>

namespace profiler
{

namespace
{

constexpr std::size_t FirstEntries = 16;

} // namespace

void RowsByHash::prefetch(std::uint32_t hash) const
{
    const Part& part = partOf(hash);
    if (!part.entries.empty())
        __builtin_prefetch(&part.entries[hash & (part.entries.size() - 1)], 1);
}

void RowsByHash::grow(Part& part, std::uint64_t firstKept)
{
    std::vector<Entry> old;
    old.swap(part.entries);
    const auto isKept = [firstKept](const Entry& each) { return each.row > firstKept; };
    part.count = std::size_t(std::count_if(old.begin(), old.end(), isKept));
    std::size_t size = FirstEntries;
    while (size < 3 * (part.count + 1))
        size *= 2;
    part.entries.assign(size, Entry{0, 0});
    for (const Entry& each : old) {
        if (!isKept(each))
            continue;
        std::size_t i = each.hash & (size - 1);
        while (part.entries[i].row != 0)
            i = (i + 1) & (size - 1);
        part.entries[i] = each;
    }
}

} // namespace profiler
