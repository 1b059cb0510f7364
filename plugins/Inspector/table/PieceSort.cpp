// SPDX-License-Identifier: MIT
#include "table/PieceSort.h"

#include <algorithm>

namespace inspector
{

PieceSort::PieceSort(std::vector<int> indices, Less less)
    : m_from(std::move(indices))
    , m_less(std::move(less))
{
    std::size_t passes = 1;
    for (std::size_t width = Block; width < m_from.size(); width *= 2)
        ++passes;
    m_total = m_from.size() * passes;
    if (passes > 1)
        m_to.reserve(m_from.size());
    beginRun();
}

bool PieceSort::step(std::size_t amount)
{
    const std::size_t until = std::min(m_done + amount, m_total);
    while (m_done < until) {
        if (m_sorted < m_from.size())
            sortBlock();
        else
            merge(until - m_done);
    }
    return m_done == m_total;
}

void PieceSort::sortBlock()
{
    const auto begin = m_from.begin() + std::ptrdiff_t(m_sorted);
    const std::size_t count = std::min(Block, m_from.size() - m_sorted);
    std::stable_sort(begin, begin + std::ptrdiff_t(count), m_less);
    m_sorted += count;
    m_done += count;
}

void PieceSort::beginRun()
{
    m_left = m_to.size();
    m_middle = m_right = std::min(m_left + m_width, m_from.size());
    m_end = std::min(m_middle + m_width, m_from.size());
}

void PieceSort::beginPass()
{
    std::swap(m_from, m_to);
    m_to.clear();
    m_width *= 2;
    beginRun();
}

void PieceSort::merge(std::size_t amount)
{
    for (; amount > 0; --amount) {
        const bool takesRight =
            m_left == m_middle || (m_right < m_end && m_less(m_from[m_right], m_from[m_left]));
        m_to.push_back(m_from[takesRight ? m_right++ : m_left++]);
        ++m_done;
        if (m_to.size() == m_from.size())
            beginPass();
        else if (m_left == m_middle && m_right == m_end)
            beginRun();
    }
}

} // namespace inspector
