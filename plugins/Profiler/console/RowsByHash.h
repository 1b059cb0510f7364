// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace profiler
{

/// Numbers of rows by a hash of 32 bits, several of one hash where need be. It grows in parts, one at a time,
/// so that no addition takes long however many there are. A plain value.
///
/// Written here because a std::unordered_multimap takes an allocation for each row and grows as a whole.
class RowsByHash
{
public:
    void clear() { m_parts = {}; }
    /// Fetches what find() will look at, for a hash that comes soon.
    void prefetch(std::uint32_t hash) const;
    /// The first row of this hash that isWanted(row) takes, from 0; where there is none, -1, and `row` is
    /// added. Rows before firstKept may be forgotten.
    template <class IsWanted>
    std::int64_t findOrAdd(std::uint32_t hash, std::uint64_t row, std::uint64_t firstKept, IsWanted isWanted)
    {
        Part& part = partOf(hash);
        if (2 * (part.count + 1) > part.entries.size())
            grow(part, firstKept);
        const std::size_t mask = part.entries.size() - 1;
        std::size_t i = hash & mask;
        for (; part.entries[i].row != 0; i = (i + 1) & mask) {
            const Entry slot = part.entries[i];
            if (slot.hash == hash && isWanted(slot.row - 1))
                return slot.row - 1;
        }
        ++part.count;
        part.entries[i] = {hash, std::uint32_t(row + 1)};
        return -1;
    }

private:
    struct Entry {
        std::uint32_t hash;
        std::uint32_t row; // from 1; 0 for none
    };
    struct Part {
        std::vector<Entry> entries; // open addressing, a power of two
        std::size_t count = 0;
    };
    static constexpr int PartBits = 6;

    Part& partOf(std::uint32_t hash) { return m_parts[hash >> (32 - PartBits)]; }
    const Part& partOf(std::uint32_t hash) const { return m_parts[hash >> (32 - PartBits)]; }
    static void grow(Part& part, std::uint64_t firstKept);

    std::array<Part, 1 << PartBits> m_parts;
};

} // namespace profiler
