// SPDX-License-Identifier: MIT
#include <xsg/actions/ChildPlaces.h>

#include <algorithm>
#include <functional>
#include <numeric>

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
    if (m_byAddress.size() != children.size())
        build(children);
    const auto [first, last] =
        std::equal_range(m_byAddress.begin(), m_byAddress.end(), child, ByAddress{children});
    places.insert(places.end(), first, last);
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
