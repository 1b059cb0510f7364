// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoState.h>

#include <string_view>
#include <unordered_map>

namespace xsg
{

/// Makes equal lists one and the same, so that comparing two of them is comparing two pointers.
template <class T>
class ListInterner
{
public:
    /// The list that stands for all that are equal to this one; null stays null.
    const SoShared<T>& get(const SoShared<T>& list)
    {
        static const SoShared<T> none;
        if (!list)
            return none;
        if (list == m_asked)
            return m_answer;
        m_asked = list;
        const auto [begin, end] = m_known.equal_range(hash(*list));
        for (auto it = begin; it != end; ++it) {
            if (*it->second == *list)
                return m_answer = it->second;
        }
        dropUnused();
        m_known.emplace(hash(*list), list);
        return m_answer = list;
    }
    void clear()
    {
        m_known.clear();
        m_asked = m_answer = nullptr;
    }

private:
    /// Now and then, so that lists which nobody else holds any more do not pile up.
    void dropUnused()
    {
        if (m_known.size() < m_mostKnown)
            return;
        for (auto it = m_known.begin(); it != m_known.end();)
            it = it->second.use_count() == 1 ? m_known.erase(it) : std::next(it);
        m_mostKnown = 2 * m_known.size() + Few;
    }

    /// Equal lists may differ in their bytes (0 and -0); they are then kept twice, which does no harm.
    static std::size_t hash(const std::vector<T>& list)
    {
        const auto* bytes = reinterpret_cast<const char*>(list.data());
        return std::hash<std::string_view>()({bytes, list.size() * sizeof(T)});
    }

    static constexpr std::size_t Few = 64;
    std::size_t m_mostKnown = Few;
    std::unordered_multimap<std::size_t, SoShared<T>> m_known;
    /// The last question: neighbours in a scene mostly have the same list.
    SoShared<T> m_asked;
    SoShared<T> m_answer;
};

} // namespace xsg
