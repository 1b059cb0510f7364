// Reads groups of indices, leaving out those that name a point that is not there.
#pragma once

#include <xsg/fields/SoMFInt32.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace xsg
{

// Appends each group of `size` indices that lies wholly within the points, and the number of the group to
// `faces`.
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

} // namespace xsg
