// SPDX-License-Identifier: MIT
#include "table/TableSelection.h"

#include <algorithm>

namespace inspector
{

namespace
{

std::uint32_t maskOf(const CellRange& range)
{
    const std::uint64_t upTo = (std::uint64_t{1} << (range.right + 1)) - 1;
    return std::uint32_t(upTo & ~((std::uint64_t{1} << range.left) - 1));
}

// Every row at which the selected columns may change.
std::vector<int> breaksOf(const std::vector<CellRange>& ranges)
{
    std::vector<int> breaks;
    for (const CellRange& range : ranges) {
        breaks.push_back(range.top);
        breaks.push_back(range.bottom + 1);
    }
    std::sort(breaks.begin(), breaks.end());
    breaks.erase(std::unique(breaks.begin(), breaks.end()), breaks.end());
    return breaks;
}

int bitCount(std::uint32_t mask)
{
    int count = 0;
    for (; mask; mask &= mask - 1)
        ++count;
    return count;
}

} // namespace

bool TableSelection::contains(TableCell cell) const
{
    return std::any_of(m_ranges.begin(), m_ranges.end(),
                       [cell](const CellRange& range) { return range.contains(cell); });
}

void TableSelection::clear()
{
    *this = TableSelection();
}

void TableSelection::select(TableCell cell)
{
    m_ranges.clear();
    add(cell);
}

void TableSelection::add(TableCell cell)
{
    m_isOfRows = false;
    m_current = m_anchor = cell;
    m_ranges.push_back(fromAnchor());
}

CellRange TableSelection::fromAnchor() const
{
    return {std::min(m_anchor.row, m_current.row), std::min(m_anchor.column, m_current.column),
            std::max(m_anchor.row, m_current.row), std::max(m_anchor.column, m_current.column)};
}

void TableSelection::extendTo(TableCell cell)
{
    if (m_ranges.empty())
        return select(cell);
    m_current = cell;
    const CellRange rows = m_ranges.back();
    m_ranges.back() = fromAnchor();
    if (m_isOfRows) {
        m_ranges.back().left = rows.left;
        m_ranges.back().right = rows.right;
    }
}

void TableSelection::selectRows(int first, int last, int columnCount, int column)
{
    m_ranges.clear();
    addRows(first, last, columnCount, column);
}

void TableSelection::addRows(int first, int last, int columnCount, int column)
{
    m_isOfRows = true;
    m_anchor = {first, column};
    m_current = {last, column};
    m_ranges.push_back({std::min(first, last), 0, std::max(first, last), columnCount - 1});
}

void TableSelection::selectRange(const CellRange& range, TableCell current)
{
    m_isOfRows = false;
    m_anchor = m_current = current;
    m_ranges.assign(1, range);
}

void TableSelection::clamp(int rowCount, int columnCount)
{
    if (rowCount <= 0 || columnCount <= 0)
        return clear();
    const auto clampCell = [&](TableCell& cell) {
        if (cell.isValid())
            cell = {std::min(cell.row, rowCount - 1), std::min(cell.column, columnCount - 1)};
    };
    clampCell(m_current);
    clampCell(m_anchor);
    for (CellRange& range : m_ranges) {
        range.bottom = std::min(range.bottom, rowCount - 1);
        range.right = std::min(range.right, columnCount - 1);
    }
    const auto isGone = [](const CellRange& range) {
        return range.top > range.bottom || range.left > range.right;
    };
    m_ranges.erase(std::remove_if(m_ranges.begin(), m_ranges.end(), isGone), m_ranges.end());
    if (m_ranges.empty() && m_current.isValid())
        select(m_current);
}

std::vector<RowBand> TableSelection::bands() const
{
    std::vector<RowBand> bands;
    const std::vector<int> breaks = breaksOf(m_ranges);
    for (std::size_t i = 0; i + 1 < breaks.size(); ++i) {
        RowBand band{breaks[i], breaks[i + 1] - 1, 0};
        for (const CellRange& range : m_ranges) {
            if (range.top <= band.first && band.last <= range.bottom)
                band.columns |= maskOf(range);
        }
        const bool continues =
            !bands.empty() && bands.back().last + 1 == band.first && bands.back().columns == band.columns;
        if (continues)
            bands.back().last = band.last;
        else if (band.columns)
            bands.push_back(band);
    }
    return bands;
}

std::int64_t TableSelection::cellCount() const
{
    std::int64_t count = 0;
    for (const RowBand& band : bands())
        count += band.rowCount() * bitCount(band.columns);
    return count;
}

bool TableSelection::isOfWholeRows(int columnCount) const
{
    const std::uint32_t all = maskOf({0, 0, 0, columnCount - 1});
    const std::vector<RowBand> selected = bands();
    return !selected.empty() && std::all_of(selected.begin(), selected.end(),
                                            [all](const RowBand& band) { return band.columns == all; });
}

} // namespace inspector
