// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

class SoGroup;
class SoNode;

namespace xsg
{

/// The nodes of a scene in the order in which a walk met them, for a later walk to compare with. Nodes are
/// known by their ids, so that a new node at the address of a destroyed one is never taken for it.
class WalkRecord
{
public:
    /// A node as the walk met it.
    struct Entry {
        std::uint64_t nodeId;
        std::uint32_t changeCount; // of a group: of its own fields only
        std::uint32_t wholeCount;  // of a group: with everything below
        std::uint32_t firstItem;   // the first of the render items that it added
        std::uint32_t end;         // of a group: the place after its last descendant
        bool isStateScope;
    };
    /// Where the children of a group with many of them are recorded.
    struct Children {
        std::vector<std::uint32_t> entries;
        std::vector<std::uint32_t> reaching; // places of children that change the state of those after them
    };

    void clear();
    /// Gives back what the record has grown beyond its contents.
    void fitMemory();
    bool isEmpty() const { return m_entries.empty(); }
    std::size_t getSize() const { return m_entries.size(); }
    Entry& operator[](std::size_t place) { return m_entries[place]; }
    const Entry& operator[](std::size_t place) const { return m_entries[place]; }

    /// `itemCount`: of the render items so far.
    void add(const SoNode* node, std::size_t itemCount);
    /// Returns the entry's place, for closeGroup().
    std::uint32_t openGroup(const SoGroup* group, std::size_t itemCount);
    void closeGroup(std::uint32_t place) { m_entries[place].end = static_cast<std::uint32_t>(getSize()); }
    /// Records where the children of a closed group stand. False, and nothing recorded, where the group has
    /// chosen among its children.
    bool addChildren(std::uint32_t place, const SoGroup& group);
    /// Null where they are not recorded.
    const Children* findChildren(std::uint32_t place) const;
    /// The first render item that was added after the entry, of `itemCount`.
    std::uint32_t firstItemAfter(std::size_t place, std::size_t itemCount) const;
    /// Calls `take(first, end)` with the items of each place where the node stands.
    template <class Take>
    void forEachPlaceOf(std::uint64_t nodeId, std::size_t itemCount, const Take& take) const
    {
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            if (m_entries[i].nodeId != nodeId)
                continue;
            const std::size_t last = m_entries[i].end > i ? m_entries[i].end - 1 : i;
            take(m_entries[i].firstItem, firstItemAfter(last, itemCount));
        }
    }

private:
    std::vector<Entry> m_entries;
    std::unordered_map<std::uint32_t, Children> m_children; // by the group's place
};

} // namespace xsg
