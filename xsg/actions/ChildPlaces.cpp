// SPDX-License-Identifier: MIT
#include <xsg/actions/ChildPlaces.h>

#include <algorithm>
#include <functional>
#include <numeric>
#include <utility>

namespace
{

// Compares places, and places with a child, by the child's address.
struct ByAddress {
    const std::vector<SoNode*>& children;
    bool operator()(std::uint32_t a, std::uint32_t b) const { return isBefore(children[a], children[b]); }
    bool operator()(std::uint32_t place, const SoNode* child) const
    {
        return isBefore(children[place], child);
    }
    bool operator()(const SoNode* child, std::uint32_t place) const
    {
        return isBefore(child, children[place]);
    }
    static bool isBefore(const SoNode* a, const SoNode* b) { return std::less<>()(a, b); }
};

} // namespace

void xsg::ChildPlaces::find(const std::vector<SoNode*>& children, const SoNode* child,
                            std::vector<std::uint32_t>& places)
{
    follow(children);
    if (m_byAddress.size() != children.size())
        build(children);
    const auto [first, last] =
        std::equal_range(m_byAddress.begin(), m_byAddress.end(), child, ByAddress{children});
    places.insert(places.end(), first, last);
}

void xsg::ChildPlaces::note(const SoChildrenChange& change)
{
    constexpr std::size_t Few = 16; // each looks at the whole index
    if (m_byAddress.empty())
        return;
    m_changes.push_back(change);
    if (m_changes.size() <= Few)
        return;
    m_changes.clear();
    m_byAddress.clear();
}

void xsg::ChildPlaces::follow(const std::vector<SoNode*>& children)
{
    constexpr std::uint32_t Gone = 0xFFFFFFFF;
    if (m_changes.empty())
        return;
    std::vector<std::uint32_t> added;
    for (const SoChildrenChange& change : std::exchange(m_changes, {})) {
        const std::uint32_t end = change.place + change.removed;
        const auto move = [&](std::uint32_t& place) {
            if (place != Gone && place >= end)
                place += change.inserted - change.removed;
            else if (place != Gone && place >= change.place)
                place = Gone;
        };
        std::for_each(m_byAddress.begin(), m_byAddress.end(), move);
        std::for_each(added.begin(), added.end(), move);
        for (std::uint32_t i = 0; i < change.inserted; ++i)
            added.push_back(change.place + i);
    }
    if (added.size() > 64 + m_byAddress.size() / 16) { // each moves a part of the index
        m_byAddress.clear();
        return;
    }
    m_byAddress.erase(std::remove(m_byAddress.begin(), m_byAddress.end(), Gone), m_byAddress.end());
    const ByAddress byAddress{children};
    for (const std::uint32_t place : added) {
        if (place != Gone)
            m_byAddress.insert(
                std::upper_bound(m_byAddress.begin(), m_byAddress.end(), children[place], byAddress), place);
    }
}

void xsg::ChildPlaces::build(const std::vector<SoNode*>& children)
{
    m_byAddress.resize(children.size());
    std::iota(m_byAddress.begin(), m_byAddress.end(), 0U);
    const ByAddress byAddress{children};
    // Children that were created one after the other mostly are in order already.
    if (!std::is_sorted(m_byAddress.begin(), m_byAddress.end(), byAddress))
        std::stable_sort(m_byAddress.begin(), m_byAddress.end(), byAddress);
}
