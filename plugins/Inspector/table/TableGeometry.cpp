// SPDX-License-Identifier: MIT
#include "table/TableGeometry.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace inspector
{

int TableGeometry::columnLeft(int column) const
{
    return numberWidth - scrolledX + std::accumulate(widths.begin(), widths.begin() + column, 0);
}

int TableGeometry::columnsWidth() const
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

bool TableGeometry::isVisible(int row) const
{
    return row >= firstRow && row <= lastVisibleRow();
}

QRect TableGeometry::cell(TableCell cell) const
{
    if (!cell.isValid() || !isVisible(cell.row))
        return {};
    return {columnLeft(cell.column), top(cell.row), widths[std::size_t(cell.column)], rowHeight};
}

QRect TableGeometry::heading(int column) const
{
    return {columnLeft(column), 0, widths[std::size_t(column)], headingHeight};
}

QRect TableGeometry::number(int row) const
{
    return isVisible(row) ? QRect(0, top(row), numberWidth, rowHeight) : QRect();
}

QRect TableGeometry::cellsArea() const
{
    return QRect(QPoint(numberWidth, headingHeight), QPoint(viewport.width() - 1, viewport.height() - 1));
}

int TableGeometry::wholeRows() const
{
    return std::max((viewport.height() - headingHeight) / rowHeight, 1);
}

int TableGeometry::lastVisibleRow() const
{
    const int some = std::max(viewport.height() - headingHeight + rowHeight - 1, 0) / rowHeight;
    return std::min(rowCount - firstRow, some) + firstRow - 1;
}

int TableGeometry::columnAt(int x) const
{
    int right = columnLeft(0);
    for (std::size_t column = 0; column < widths.size(); ++column) {
        right += widths[column];
        if (x < right)
            return int(column);
    }
    return int(widths.size()) - 1;
}

int TableGeometry::edgeAt(int x) const
{
    int right = columnLeft(0);
    for (std::size_t column = 0; column < widths.size(); ++column) {
        right += widths[column];
        if (std::abs(x - right) <= edgeReach)
            return int(column);
    }
    return -1;
}

TableCell TableGeometry::nearestCell(QPoint position) const
{
    if (rowCount == 0 || widths.empty())
        return {};
    const int below = position.y() - headingHeight;
    const int steps = below >= 0 ? below / rowHeight : -1 - (-1 - below) / rowHeight;
    const int row = int(std::clamp<std::int64_t>(std::int64_t(firstRow) + steps, 0, rowCount - 1));
    return {row, columnAt(position.x())};
}

TableGeometry::Place TableGeometry::placeAt(QPoint position) const
{
    Place place;
    place.cell = nearestCell(position);
    const bool isAbove = position.y() < headingHeight;
    const bool isBeside = position.x() < numberWidth;
    if (isAbove) {
        place.area = isBeside ? Area::Corner : Area::Headings;
        place.edgeOf = isBeside ? -1 : edgeAt(position.x());
        if (!widths.empty() && !isBeside)
            place.cell.column = columnAt(position.x());
        return place;
    }
    const bool isBelow = rowCount == 0 || position.y() >= top(lastVisibleRow()) + rowHeight;
    const bool isRight = position.x() >= columnLeft(0) + columnsWidth();
    if (!isBelow && isBeside)
        place.area = Area::Numbers;
    else if (!isBelow && !isRight)
        place.area = Area::Cells;
    return place;
}

int TableGeometry::gapAt(QPoint position) const
{
    const int steps = (position.y() - headingHeight + rowHeight / 2) / rowHeight;
    return int(std::clamp<std::int64_t>(std::int64_t(firstRow) + steps, 0, rowCount));
}

} // namespace inspector
