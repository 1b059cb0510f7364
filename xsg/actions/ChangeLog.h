// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <vector>

class SoNode;

namespace xsg
{

/// Which children of a group changed lately, so that what is remembered about a large group can be brought up
/// to date without looking at each child.
class ChangeLog
{
public:
    /// Knows of everything after the group's change count `now`.
    explicit ChangeLog(std::uint32_t now)
        : m_completeSince(now)
    {
    }

    /// The child, or what is below it, changed; null: the group itself. `count`: of the group, with this
    /// change.
    void add(const SoNode* child, std::uint32_t count)
    {
        Entry* place = &m_entries[0];
        for (Entry& entry : m_entries) {
            if (entry.count != 0 && entry.child == child) {
                entry.count = count;
                return;
            }
            if (entry.count < place->count)
                place = &entry;
        }
        if (place->count > m_completeSince)
            m_completeSince = place->count;
        *place = {child, count};
    }
    /// Appends what changed after the count was `since`, each once. False where that is no longer known.
    bool collectSince(std::uint32_t since, std::vector<const SoNode*>& changed) const
    {
        if (since < m_completeSince)
            return false;
        for (const Entry& entry : m_entries) {
            if (entry.count > since)
                changed.push_back(entry.child);
        }
        return true;
    }

private:
    struct Entry {
        const SoNode* child = nullptr; // only compared with: it may have been destroyed
        std::uint32_t count = 0;       // 0: free
    };
    std::array<Entry, 16> m_entries{};
    std::uint32_t m_completeSince;
};

} // namespace xsg
