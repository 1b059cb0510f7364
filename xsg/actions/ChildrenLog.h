// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/groups/SoGroupExtension.h>

#include <algorithm>
#include <vector>

namespace xsg
{

/// How the list of children of a group changed lately. Changes at one place, such as the insertion of many
/// children one after the other, are kept as one as long as nobody has asked in between.
class ChildrenLog
{
public:
    /// Knows of everything after the group's change count `now`.
    explicit ChildrenLog(std::uint32_t now)
        : m_completeSince(now)
    {
    }
    void add(const SoChildrenChange& change)
    {
        if (!m_changes.empty() && m_changes.back().since >= m_asked && join(m_changes.back().change, change))
            return;
        if (m_changes.size() == Most) {
            m_completeSince = m_changes.front().change.changeCount;
            m_changes.erase(m_changes.begin());
        }
        m_changes.push_back({change.changeCount - 1, change});
    }
    /// Appends the changes after the count was `since`, which is `now` at present. False where they are no
    /// longer known.
    bool collectSince(std::uint32_t since, std::uint32_t now, std::vector<SoChildrenChange>& changes)
    {
        m_asked = std::max(m_asked, now);
        if (since < m_completeSince)
            return false;
        for (const Known& known : m_changes) {
            if (known.since >= since)
                changes.push_back(known.change);
            else if (known.change.changeCount > since)
                return false; // joined over what was asked for
        }
        return true;
    }

private:
    static constexpr std::size_t Most = 16;
    struct Known {
        std::uint32_t since; // the count before it
        SoChildrenChange change;
    };

    // Makes one of two changes where the second touches what the first has put there.
    static bool join(SoChildrenChange& first, const SoChildrenChange& second)
    {
        const std::uint32_t end = first.place + first.inserted;
        if (second.place > end || second.place + second.removed < first.place)
            return false;
        const std::uint32_t before = second.place < first.place ? first.place - second.place : 0;
        const std::uint32_t secondEnd = second.place + second.removed;
        const std::uint32_t behind = secondEnd > end ? secondEnd - end : 0;
        first.inserted = first.inserted + before + behind - second.removed + second.inserted;
        first.removed += before + behind;
        first.place -= before;
        first.changeCount = second.changeCount;
        return true;
    }

    std::vector<Known> m_changes;
    std::uint32_t m_completeSince;
    std::uint32_t m_asked = 0; // the count when somebody asked last
};

} // namespace xsg
