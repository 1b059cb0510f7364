// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableGeometry.h"
#include "table/TableRows.h"

class QWidget;

namespace inspector
{

/// How wide the columns of a table are: as the user made them, the others as their content needs, and these
/// share what is left of the room.
class TableColumns
{
public:
    /// `area`: what they are painted on.
    TableColumns(const TableRows& rows, const QWidget& area)
        : m_rows(rows)
        , m_area(area)
    {
    }

    /// Other columns, none of them sized by the user.
    void reset() { m_userWidths.assign(std::size_t(m_rows.columnCount()), 0); }
    void setWidth(int column, int width);
    /// What the rows from `first` to `last` need.
    int fittingWidth(int column, int first, int last) const;

    int numberWidth(int rowHeight) const;
    /// The width of each for so much room; `missing` is what there is too little of it.
    std::vector<int> widths(int room, int& missing) const;

private:
    int leastWidth(int column) const;

    const TableRows& m_rows;
    const QWidget& m_area;
    std::vector<int> m_userWidths; // 0: as wide as suits
};

} // namespace inspector
