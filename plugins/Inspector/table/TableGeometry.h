// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableSelection.h"

#include <QRect>
#include <QSize>

#include <vector>

namespace inspector
{

/// Where the parts of a table are in its viewport: the headings above, the row numbers at the left, the
/// cells. Rows have one height and columns one width each, so that nothing grows with the number of rows; the
/// vertical place is the first visible row, the horizontal one is in pixels.
struct TableGeometry {
    enum class Area { Nowhere, Cells, Headings, Numbers, Corner };

    struct Place {
        Area area = Area::Nowhere;
        TableCell cell;  // the nearest one; -1 where there is none
        int edgeOf = -1; // the column whose right edge is grabbed there, in the headings
    };

    int columnLeft(int column) const;
    int columnsWidth() const;
    /// Empty for a row that is not in the viewport.
    QRect cell(TableCell cell) const;
    QRect heading(int column) const;
    QRect number(int row) const;
    QRect cellsArea() const;

    /// How many rows are seen whole, at least 1, and up to which one they are seen at all.
    int wholeRows() const;
    int lastVisibleRow() const;

    Place placeAt(QPoint position) const;
    /// The nearest cell, also outside of the viewport; invalid in an empty table.
    TableCell nearestCell(QPoint position) const;
    /// Between which rows a position is, from 0 to rowCount.
    int gapAt(QPoint position) const;

    QSize viewport;
    int rowCount = 0;
    int rowHeight = 20;
    int headingHeight = 20;
    int numberWidth = 40;
    int edgeReach = 4;
    std::vector<int> widths;
    int firstRow = 0;
    int scrolledX = 0;

private:
    bool isVisible(int row) const;
    int top(int row) const { return headingHeight + (row - firstRow) * rowHeight; }
    int columnAt(int x) const;
    int edgeAt(int x) const;
};

} // namespace inspector
