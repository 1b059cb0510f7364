// SPDX-License-Identifier: MIT
#include "table/ListTableView.h"

#include "table/TableAccessible.h"
#include "table/TablePainter.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int LongestTip = 1000; // characters

} // namespace

ListTableView::ListTableView(QWidget* parent)
    : QAbstractScrollArea(parent)
    , m_columns(m_rows, *viewport())
    , m_typing(*new CellTyping(*this))
    , m_mouse(*new TableMouse(*this))
{
    setObjectName(QStringLiteral("listTable"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(1);
    connect(&m_typing, &CellTyping::ended, this, &ListTableView::goOn);
    connect(&m_typing, &CellTyping::dropped, this, &ListTableView::typingDropped);
}

void ListTableView::show(SoMField* list)
{
    dropTyping();
    m_mouse.endDrag();
    const bool isOther = list != m_rows.list();
    m_rows.show(list);
    m_sortedBy = -1;
    if (isOther) {
        m_columns.reset();
        m_selection.clear();
        if (m_rows.count() > 0)
            m_selection.select({0, 0});
        verticalScrollBar()->setValue(0);
        horizontalScrollBar()->setValue(0);
    }
    refresh();
}

void ListTableView::refresh()
{
    const TableSelection before = m_selection;
    m_selection.clamp(m_rows.count(), m_rows.columnCount());
    if (!m_selection.current().isValid() && m_rows.count() > 0)
        m_selection.select({0, 0});
    layOut();
    m_typing.follow();
    viewport()->update();
    if (before.current() != m_selection.current() || before.ranges().size() != m_selection.ranges().size())
        selectionHasChanged();
}

void ListTableView::setOrder(RowOrder order, int sortedBy, bool isDescending)
{
    dropTyping();
    TableCell current = m_selection.current();
    const int element = current.isValid() && m_rows.isThere(current.row) ? m_rows.elementOf(current.row) : -1;
    m_rows.setOrder(std::move(order));
    m_sortedBy = sortedBy;
    m_isDescending = isDescending;
    const int row = element < 0 ? -1 : m_rows.rowOf(element);
    m_selection.clear();
    if (m_rows.count() > 0)
        m_selection.select({std::max(row, 0), std::max(current.column, 0)});
    refresh();
    scrollTo(m_selection.current());
    selectionHasChanged();
}

void ListTableView::setSelection(const TableSelection& selection)
{
    endTyping();
    m_selection = selection;
    m_selection.clamp(m_rows.count(), m_rows.columnCount());
    selectionHasChanged();
}

void ListTableView::changeSelection(TableSelection selection)
{
    m_selection = std::move(selection);
    selectionHasChanged();
}

void ListTableView::selectionHasChanged()
{
    viewport()->update();
    TableAccessible::currentChanged(*this);
    emit selectionChanged();
}

// --- Where everything is

void ListTableView::layOut()
{
    const QFontMetrics metrics = fontMetrics();
    const int count = m_rows.count();
    m_geometry.viewport = viewport()->size();
    m_geometry.rowCount = count;
    m_geometry.rowHeight = metrics.height() + metrics.height() / 4 + 2;
    m_geometry.headingHeight = m_geometry.rowHeight;
    m_geometry.edgeReach = std::max(metrics.averageCharWidth() / 2, 3);
    m_geometry.numberWidth = m_columns.numberWidth(m_geometry.rowHeight);
    verticalScrollBar()->setPageStep(m_geometry.wholeRows());
    verticalScrollBar()->setRange(0, std::max(count - m_geometry.wholeRows(), 0));
    m_geometry.firstRow = verticalScrollBar()->value();
    layOutColumns();
    m_typing.place();
}

void ListTableView::layOutColumns()
{
    int missing = 0;
    m_geometry.widths = m_columns.widths(viewport()->width() - m_geometry.numberWidth, missing);
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().averageCharWidth() * 4);
    horizontalScrollBar()->setRange(0, missing);
    m_geometry.scrolledX = horizontalScrollBar()->value();
}

void ListTableView::setColumnWidth(int column, int width)
{
    m_columns.setWidth(column, width);
    layOut();
    viewport()->update();
}

void ListTableView::fitColumn(int column)
{
    setColumnWidth(column, m_columns.fittingWidth(column, m_geometry.firstRow, m_geometry.lastVisibleRow()));
}

void ListTableView::goTo(TableCell cell)
{
    m_selection.select(cell);
    scrollTo(cell);
    selectionHasChanged();
}

void ListTableView::scrollTo(TableCell cell)
{
    if (!cell.isValid() || cell.row >= m_rows.count())
        return;
    const int whole = m_geometry.wholeRows();
    if (cell.row < m_geometry.firstRow)
        verticalScrollBar()->setValue(cell.row);
    else if (cell.row >= m_geometry.firstRow + whole)
        verticalScrollBar()->setValue(cell.row - whole + 1);
    const int left = m_geometry.columnLeft(cell.column) + m_geometry.scrolledX - m_geometry.numberWidth;
    const int right = left + columnWidth(cell.column);
    const int room = viewport()->width() - m_geometry.numberWidth;
    if (right - room > horizontalScrollBar()->value())
        horizontalScrollBar()->setValue(right - room);
    if (left < horizontalScrollBar()->value())
        horizontalScrollBar()->setValue(left);
}

void ListTableView::scrollContentsBy(int /*dx*/, int /*dy*/)
{
    m_geometry.firstRow = verticalScrollBar()->value();
    m_geometry.scrolledX = horizontalScrollBar()->value();
    m_typing.place();
    viewport()->update();
}

QSize ListTableView::sizeHint() const
{
    const int width = fontMetrics().averageCharWidth();
    return {width * 40, m_geometry.rowHeight * 12};
}

QSize ListTableView::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 10, m_geometry.rowHeight * 4};
}

void ListTableView::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void ListTableView::changeEvent(QEvent* event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        layOut();
}

void ListTableView::paintEvent(QPaintEvent* /*event*/)
{
    if (!m_rows.list())
        return;
    QPainter painter(viewport());
    const TablePainter::State state{m_rows,        m_geometry, m_selection,
                                    m_mouse.gap(), m_sortedBy, m_isDescending};
    TablePainter(painter, *viewport(), state).paint();
}

void ListTableView::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
}

void ListTableView::focusOutEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

// --- Keys

QAction* ListTableView::actionFor(const QKeyEvent& event) const
{
    const int keypad = int(Qt::KeypadModifier);
    const QKeySequence pressed((int(event.modifiers()) & ~keypad) | event.key());
    for (QAction* action : actions()) {
        if (action->shortcuts().contains(pressed))
            return action;
    }
    return nullptr;
}

// The window's shortcuts give way to the table's own keys while it has the focus.
bool ListTableView::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && isOwnKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

bool ListTableView::isOwnKey(const QKeyEvent& event) const
{
    const bool isTab = event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab;
    return isTab || actionFor(event);
}

void ListTableView::keyPressEvent(QKeyEvent* event)
{
    if (m_mouse.isDragging() && event->key() == Qt::Key_Escape)
        return m_mouse.endDrag();
    if (QAction* action = actionFor(*event)) {
        action->trigger();
        return;
    }
    if (navigate(*event))
        return;
    const bool isTruth = m_rows.list() && m_rows.access().kind() == ListAccess::Kind::Truth;
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && isTruth)
        emit toggleAsked();
    else if (TableKeys::isTyping(*event) && m_rows.list())
        openCell(event->text());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

TableKeys ListTableView::keys() const
{
    return {m_rows.count(), m_rows.columnCount(), std::max(m_geometry.wholeRows() - 1, 1)};
}

bool ListTableView::navigate(const QKeyEvent& event)
{
    if (const auto end = TableKeys::endOf(event)) {
        const bool leaves = *end == CellEditor::End::Left && event.modifiers() & Qt::ControlModifier;
        leaves ? emit leaveAsked(false) : goOn(*end);
        return true;
    }
    const auto to = keys().target(event, m_selection.current());
    if (to)
        go(*to, event.modifiers() & Qt::ShiftModifier);
    return to.has_value();
}

void ListTableView::go(TableCell to, bool extends)
{
    if (m_rows.count() == 0)
        return;
    to.row = std::clamp(to.row, 0, m_rows.count() - 1);
    to.column = std::clamp(to.column, 0, m_rows.columnCount() - 1);
    if (extends)
        m_selection.extendTo(to);
    else
        m_selection.select(to);
    scrollTo(to);
    selectionHasChanged();
}

// Tab leaves the table behind its last cell and before its first.
void ListTableView::goOn(CellEditor::End end)
{
    if (const auto next = keys().next(m_selection.current(), end))
        go(*next, false);
    else if (end == CellEditor::End::Right || end == CellEditor::End::Leave)
        emit leaveAsked(true);
    else if (end == CellEditor::End::Left)
        emit leaveAsked(false);
}

void ListTableView::openCell(const QString& typed)
{
    const TableCell cell = m_selection.current();
    if (cellEditor() || !cell.isValid() || !m_rows.isThere(cell.row))
        return;
    scrollTo(cell);
    m_typing.open(cell, typed);
}

// --- Mouse

bool ListTableView::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        showToolTip(*static_cast<QHelpEvent*>(event));
        return true;
    }
    return QAbstractScrollArea::viewportEvent(event);
}

// What is cut off, in full.
void ListTableView::showToolTip(const QHelpEvent& event)
{
    const TableGeometry::Place place = m_geometry.placeAt(event.pos());
    QString text;
    if (place.area == TableGeometry::Area::Headings)
        text = m_rows.longHeading(place.cell.column);
    else if (place.area == TableGeometry::Area::Cells && m_rows.isThere(place.cell.row))
        text = m_rows.text(place.cell.row, place.cell.column).left(LongestTip);
    QToolTip::showText(event.globalPos(), text.toHtmlEscaped(), viewport());
}

void ListTableView::mousePressEvent(QMouseEvent* event)
{
    m_mouse.press(*event);
}

void ListTableView::mouseMoveEvent(QMouseEvent* event)
{
    m_mouse.move(*event);
}

void ListTableView::mouseReleaseEvent(QMouseEvent* event)
{
    m_mouse.release(*event);
}

void ListTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    m_mouse.doubleClick(*event);
}

void ListTableView::contextMenuEvent(QContextMenuEvent* event)
{
    endTyping();
    if (event->reason() == QContextMenuEvent::Mouse) {
        emit menuAsked(event->globalPos());
        return;
    }
    const QRect rect = m_geometry.cell(m_selection.current());
    emit menuAsked(viewport()->mapToGlobal(rect.isEmpty() ? QPoint() : rect.bottomLeft()));
}

} // namespace inspector
