// SPDX-License-Identifier: MIT
#pragma once

#include <utility>
#include <vector>

namespace inspector
{

/// Which elements of a list a table shows, and in which order. The natural order, all of them, costs nothing;
/// another one keeps an index for each row that is shown.
class RowOrder
{
public:
    RowOrder() = default;
    /// `isAscending`: the rows are in the list's own order, some of them left out.
    RowOrder(std::vector<int> elements, bool isAscending)
        : m_elements(std::move(elements))
        , m_isNatural(false)
        , m_isAscending(isAscending)
    {
    }

    bool isNatural() const { return m_isNatural; }
    bool isAscending() const { return m_isAscending; }
    int rowCount(int elementCount) const { return m_isNatural ? elementCount : int(m_elements.size()); }
    int elementOf(int row) const { return m_isNatural ? row : m_elements[std::size_t(row)]; }
    /// -1 for an element that is not shown.
    int rowOf(int element) const;
    const std::vector<int>& elements() const { return m_elements; }

private:
    std::vector<int> m_elements;
    bool m_isNatural = true;
    bool m_isAscending = true;
};

} // namespace inspector
