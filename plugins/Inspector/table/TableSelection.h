// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

namespace inspector
{

struct TableCell {
    int row = -1;
    int column = -1;

    bool isValid() const { return row >= 0 && column >= 0; }
    friend bool operator==(TableCell a, TableCell b) { return a.row == b.row && a.column == b.column; }
    friend bool operator!=(TableCell a, TableCell b) { return !(a == b); }
};

/// A rectangle of cells; the corners belong to it.
struct CellRange {
    int top = 0;
    int left = 0;
    int bottom = -1;
    int right = -1;

    bool contains(TableCell cell) const
    {
        return cell.row >= top && cell.row <= bottom && cell.column >= left && cell.column <= right;
    }
};

/// Rows that have the same columns selected: bit c stands for column c.
struct RowBand {
    int first = 0;
    int last = -1;
    std::uint32_t columns = 0;

    std::int64_t rowCount() const { return std::int64_t(last) - first + 1; }
    bool has(int column) const { return (columns >> column & 1U) != 0; }
};

/// The current cell and the selected cells of a table, kept as rectangles, so that its cost does not grow
/// with what is selected. At most 32 columns. The last rectangle reaches from its anchor to the current cell.
class TableSelection
{
public:
    static constexpr int MostColumns = 32;

    TableCell current() const { return m_current; }
    const std::vector<CellRange>& ranges() const { return m_ranges; }
    bool isEmpty() const { return m_ranges.empty(); }
    bool contains(TableCell cell) const;

    void clear();
    /// Only this cell, and it becomes current.
    void select(TableCell cell);
    /// One more rectangle, beginning at this cell.
    void add(TableCell cell);
    /// The last rectangle reaches to this cell.
    void extendTo(TableCell cell);
    /// Whole rows; `column` of the first one becomes current.
    void selectRows(int first, int last, int columnCount, int column = 0);
    void addRows(int first, int last, int columnCount, int column = 0);
    void selectRange(const CellRange& range, TableCell current);
    /// The current cell, while the rectangles stay.
    void setCurrent(TableCell cell) { m_current = cell; }
    /// Drops what the table no longer has.
    void clamp(int rowCount, int columnCount);

    /// The selected cells in order, each once.
    std::vector<RowBand> bands() const;
    std::int64_t cellCount() const;
    /// True when every selected row is selected in all its columns.
    bool isOfWholeRows(int columnCount) const;

private:
    CellRange fromAnchor() const;

    TableCell m_current;
    TableCell m_anchor;
    bool m_isOfRows = false; // the last rectangle was begun as whole rows
    std::vector<CellRange> m_ranges;
};

} // namespace inspector
