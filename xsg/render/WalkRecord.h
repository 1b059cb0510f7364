// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

class SoGroup;
class SoNode;

namespace xsg
{

/// The nodes of a scene in the order in which a walk met them, for a later walk to compare with and to
/// change. Nodes are known by their ids, so that a new node at the address of a destroyed one is never taken
/// for it. An entry keeps its number until it is removed.
class WalkRecord
{
public:
    static constexpr std::uint32_t None = 0xFFFFFFFF;

    /// A node in one of the places where the walk met it.
    struct Entry {
        std::uint64_t nodeId = 0;
        std::uint32_t changeCount = 0; // of a group: of its own fields only
        std::uint32_t wholeCount = 0;  // of a group: with everything below
        std::uint32_t first = None;    // of a group: its first child; of a shape: its first render item
        std::uint32_t next = None;     // the next child of the same group
        std::uint32_t itemCount = 0;   // of a shape
        bool isGroup = false;
        bool isIsolated = false; // leaves the state as it was: a shape, or a group that is a state scope
        bool isLight = false;    // that is on
        bool isSpecial = false;  // whose going is not followed: a camera, an application's own drawing
    };
    /// Where the children of a group with many of them are recorded; None where that is still to come.
    struct Children {
        std::vector<std::uint32_t> entries;
        std::vector<std::uint32_t> reaching; // places of children that change the state of those after them
    };

    void clear();
    /// Gives back what the record has grown beyond its contents.
    void fitMemory();
    bool isEmpty() const { return m_first == None; }
    /// Of the root.
    std::uint32_t getFirst() const { return m_first; }
    Entry& operator[](std::uint32_t entry) { return m_entries[entry]; }
    const Entry& operator[](std::uint32_t entry) const { return m_entries[entry]; }

    /// Adds an entry as a child of `parent` (None: as the root) after its child `previous` (None: as its
    /// first).
    std::uint32_t add(const SoNode* node, std::uint32_t parent, std::uint32_t previous);
    std::uint32_t addGroup(const SoGroup* group, std::uint32_t parent, std::uint32_t previous);
    /// The child of `parent` that comes after `previous`; None: its first, and after its last.
    std::uint32_t getNext(std::uint32_t parent, std::uint32_t previous) const;
    /// Takes the child after `previous`, with all below it, out of the record; `take(entry)` is called with
    /// each.
    template <class Take>
    void removeNext(std::uint32_t parent, std::uint32_t previous, const Take& take)
    {
        std::vector<std::uint32_t> pending{unlinkNext(parent, previous)};
        while (!pending.empty()) {
            const std::uint32_t place = pending.back();
            pending.pop_back();
            const Entry entry = m_entries[place];
            if (entry.isGroup) {
                for (std::uint32_t child = entry.first; child != None; child = m_entries[child].next)
                    pending.push_back(child);
            }
            take(entry);
            forget(place);
        }
    }

    /// Records where the children of a group stand; not where it has chosen among them.
    void indexChildren(std::uint32_t place, const SoGroup& group);
    /// Null where they are not recorded.
    Children* findChildren(std::uint32_t place);
    void dropChildren(std::uint32_t place) { m_children.erase(place); }
    /// Keeps `reaching` right after `children.entries` have changed.
    void collectReaching(Children& children) const;

    /// Which nodes' places are to be known from now on.
    void watch(const std::vector<std::uint64_t>& nodeIds);
    /// Of a node that is watched.
    const std::vector<std::uint32_t>& getPlaces(std::uint64_t watchedId) const
    {
        return m_watched.at(watchedId);
    }

    /// Calls `visit(entry)` with the entry and all below it, in the order of the walk, until one says true.
    template <class Visit>
    void visitIn(std::uint32_t place, const Visit& visit) const
    {
        std::vector<std::uint32_t> open; // groups
        std::uint32_t at = place;
        while (at != None) {
            const Entry& entry = m_entries[at];
            if (visit(entry))
                return;
            if (entry.isGroup && entry.first != None) {
                open.push_back(at);
                at = entry.first;
                continue;
            }
            while (at != place && m_entries[at].next == None) {
                at = open.back();
                open.pop_back();
            }
            at = at == place ? None : m_entries[at].next;
        }
    }

private:
    std::uint32_t link(const Entry& entry, std::uint32_t parent, std::uint32_t previous);
    std::uint32_t unlinkNext(std::uint32_t parent, std::uint32_t previous);
    std::uint32_t& linkAfter(std::uint32_t parent, std::uint32_t previous);
    void forget(std::uint32_t place);
    void noteWatched(std::uint32_t place);

    std::uint32_t m_first = None;
    std::vector<Entry> m_entries;
    std::vector<std::uint32_t> m_free;                                       // entries that were removed
    std::unordered_map<std::uint32_t, Children> m_children;                  // by the group's place
    std::unordered_map<std::uint64_t, std::vector<std::uint32_t>> m_watched; // places, by the node's id
};

} // namespace xsg
