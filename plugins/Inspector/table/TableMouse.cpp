// SPDX-License-Identifier: MIT
#include "table/TableMouse.h"

#include "table/ListTableView.h"

#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int AutoScrollInterval = 40; // milliseconds

} // namespace

TableMouse::TableMouse(ListTableView& view)
    : QObject(&view)
    , m_view(view)
{
}

void TableMouse::press(const QMouseEvent& event)
{
    m_view.endTyping();
    const TableGeometry::Place place = m_view.geometry().placeAt(event.pos());
    const bool isSelected = m_view.selection().contains(place.cell);
    if (event.button() == Qt::LeftButton) {
        m_dragPosition = event.pos();
        pressIn(place, event.modifiers());
    } else if (event.button() == Qt::RightButton && place.area == TableGeometry::Area::Cells && !isSelected) {
        m_view.go(place.cell, false);
    } else if (event.button() == Qt::RightButton && place.area == TableGeometry::Area::Numbers &&
               !isSelected) {
        pressOnNumber(place.cell, {});
        endDrag();
    }
}

void TableMouse::pressIn(const TableGeometry::Place& place, Qt::KeyboardModifiers modifiers)
{
    switch (place.area) {
    case TableGeometry::Area::Cells:
        return pressOnCell(place.cell, modifiers);
    case TableGeometry::Area::Numbers:
        return pressOnNumber({place.cell.row, std::max(m_view.selection().current().column, 0)}, modifiers);
    case TableGeometry::Area::Headings:
        return pressOnHeading(place, modifiers);
    case TableGeometry::Area::Corner:
        return pressOnCorner();
    case TableGeometry::Area::Nowhere:
        return;
    }
}

void TableMouse::pressOnCell(TableCell cell, Qt::KeyboardModifiers modifiers)
{
    TableSelection selection = m_view.selection();
    if (modifiers & Qt::ShiftModifier)
        selection.extendTo(cell);
    else if (modifiers & Qt::ControlModifier)
        selection.add(cell);
    else
        selection.select(cell);
    m_drag = Drag::Cells;
    m_view.changeSelection(std::move(selection));
}

// Whole rows that are selected already can be dragged elsewhere.
void TableMouse::pressOnNumber(TableCell cell, Qt::KeyboardModifiers modifiers)
{
    TableSelection selection = m_view.selection();
    const int columns = m_view.rows().columnCount();
    const bool isPlain = !(modifiers & (Qt::ShiftModifier | Qt::ControlModifier));
    m_drag = Drag::Rows;
    if (isPlain && selection.contains(cell) && selection.isOfWholeRows(columns) &&
        m_view.rows().order().isNatural()) {
        m_drag = Drag::Move;
        return;
    }
    if (modifiers & Qt::ShiftModifier && selection.current().isValid())
        selection.selectRows(selection.ranges().empty() ? cell.row : selection.ranges().back().top, cell.row,
                             columns, cell.column);
    else if (modifiers & Qt::ControlModifier)
        selection.addRows(cell.row, cell.row, columns, cell.column);
    else
        selection.selectRows(cell.row, cell.row, columns, cell.column);
    m_view.changeSelection(std::move(selection));
}

void TableMouse::pressOnHeading(const TableGeometry::Place& place, Qt::KeyboardModifiers modifiers)
{
    if (place.edgeOf >= 0) {
        m_drag = Drag::Column;
        m_draggedColumn = place.edgeOf;
        m_dragStart = m_view.columnWidth(place.edgeOf);
        return;
    }
    if (m_view.rows().count() == 0 || !place.cell.isValid())
        return;
    TableSelection selection = m_view.selection();
    CellRange range{0, place.cell.column, m_view.rows().count() - 1, place.cell.column};
    if (modifiers & Qt::ShiftModifier && selection.current().isValid()) {
        range.left = std::min(range.left, selection.current().column);
        range.right = std::max(range.right, selection.current().column);
        selection.selectRange(range, selection.current());
    } else {
        selection.selectRange(range, {std::max(selection.current().row, 0), place.cell.column});
    }
    m_view.changeSelection(std::move(selection));
}

void TableMouse::pressOnCorner()
{
    TableSelection selection = m_view.selection();
    const TableRows& rows = m_view.rows();
    if (rows.count() > 0)
        selection.selectRange({0, 0, rows.count() - 1, rows.columnCount() - 1}, selection.current());
    m_view.changeSelection(std::move(selection));
}

void TableMouse::move(const QMouseEvent& event)
{
    if (m_drag == Drag::None) {
        setCursorFor(m_view.geometry().placeAt(event.pos()));
        return;
    }
    const bool isOutside = !m_view.geometry().cellsArea().contains(event.pos());
    if (isOutside && m_drag != Drag::Column && !m_autoScroll.isActive())
        m_autoScroll.start(AutoScrollInterval, this);
    else if (!isOutside)
        m_autoScroll.stop();
    dragTo(event.pos());
}

void TableMouse::dragTo(QPoint position)
{
    const TableCell current = m_view.selection().current();
    const TableCell cell = m_view.geometry().nearestCell(position);
    if (m_drag == Drag::Column) {
        m_view.setColumnWidth(m_draggedColumn, m_dragStart + position.x() - m_dragPosition.x());
    } else if (m_drag == Drag::Move) {
        m_gap = m_view.geometry().gapAt(position);
        m_view.viewport()->update();
    } else if (cell.isValid() && cell != current) {
        TableSelection selection = m_view.selection();
        selection.extendTo(m_drag == Drag::Rows ? TableCell{cell.row, current.column} : cell);
        m_view.changeSelection(std::move(selection));
    }
}

void TableMouse::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_autoScroll.timerId())
        return QObject::timerEvent(event);
    const QPoint position = m_view.viewport()->mapFromGlobal(QCursor::pos());
    scrollTowards(position);
    dragTo(position);
}

void TableMouse::scrollTowards(QPoint position)
{
    const QRect area = m_view.geometry().cellsArea();
    if (position.y() < area.top())
        m_view.verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (position.y() > area.bottom())
        m_view.verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    if (m_drag == Drag::Cells && position.x() > area.right())
        m_view.horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    else if (m_drag == Drag::Cells && position.x() < area.left())
        m_view.horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
}

void TableMouse::release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return;
    const Drag drag = m_drag;
    const int gap = m_gap;
    endDrag();
    if (drag != Drag::Move)
        return;
    if (gap >= 0) {
        emit m_view.rowsDropped(gap);
    } else { // a click among the selected rows selects this one
        TableSelection selection = m_view.selection();
        const TableCell cell = m_view.geometry().placeAt(event.pos()).cell;
        selection.selectRows(cell.row, cell.row, m_view.rows().columnCount(),
                             std::max(selection.current().column, 0));
        m_view.changeSelection(std::move(selection));
    }
}

void TableMouse::endDrag()
{
    m_autoScroll.stop();
    m_drag = Drag::None;
    m_gap = -1;
    m_view.viewport()->update();
}

void TableMouse::doubleClick(const QMouseEvent& event)
{
    const TableGeometry::Place place = m_view.geometry().placeAt(event.pos());
    if (event.button() != Qt::LeftButton)
        return;
    if (place.area == TableGeometry::Area::Headings && place.edgeOf >= 0)
        return m_view.fitColumn(place.edgeOf);
    if (place.area == TableGeometry::Area::Numbers)
        emit m_view.chooseAsked();
    else if (place.area == TableGeometry::Area::Cells)
        openOrChoose(place.cell);
}

void TableMouse::openOrChoose(TableCell cell)
{
    m_view.go(cell, false);
    switch (m_view.rows().access().kind()) {
    case ListAccess::Kind::Truth:
        emit m_view.toggleAsked();
        return;
    case ListAccess::Kind::Choice:
    case ListAccess::Kind::Flags:
        emit m_view.chooseAsked();
        return;
    default:
        m_view.openCell();
    }
}

void TableMouse::setCursorFor(const TableGeometry::Place& place)
{
    m_view.viewport()->setCursor(place.edgeOf >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
}

} // namespace inspector
