// SPDX-License-Identifier: MIT
#include "table/ListTableView.h"

#include "table/TableAccessible.h"
#include "table/TablePainter.h"

#include <QAction>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int AutoScrollInterval = 40; // milliseconds
constexpr int LongestTip = 1000;       // characters

} // namespace

ListTableView::ListTableView(QWidget* parent)
    : QAbstractScrollArea(parent)
{
    setObjectName(QStringLiteral("listTable"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setMouseTracking(true);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    verticalScrollBar()->setSingleStep(1);
}

void ListTableView::show(SoMField* list)
{
    dropTyping();
    endDrag();
    const bool isOther = list != m_rows.list();
    m_rows.show(list);
    m_sortedBy = -1;
    if (isOther) {
        m_userWidths.assign(std::size_t(m_rows.columnCount()), 0);
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
    editorFollows();
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
    const SoMField* list = m_rows.list();
    const QString longest = QString(QString::number(list ? list->getNum() : 0).size(), '8');
    const bool hasSwatch = count > 0 && m_rows.isThere(0) && m_rows.swatch(0).isValid();
    QFont bold = font();
    bold.setBold(true);
    m_geometry.numberWidth = QFontMetrics(bold).horizontalAdvance(longest) +
                             4 * TablePainter::margin(*viewport()) + (hasSwatch ? m_geometry.rowHeight : 0);
    verticalScrollBar()->setPageStep(m_geometry.wholeRows());
    verticalScrollBar()->setRange(0, std::max(count - m_geometry.wholeRows(), 0));
    m_geometry.firstRow = verticalScrollBar()->value();
    layOutColumns();
    placeEditor();
}

int ListTableView::leastWidth(int column) const
{
    const QFontMetrics metrics = fontMetrics();
    const bool isNumber = m_rows.list() && m_rows.access().kind() == ListAccess::Kind::Number;
    const int content =
        metrics.horizontalAdvance(isNumber ? QStringLiteral("-0.00") : QStringLiteral("FALSE"));
    const int heading = metrics.horizontalAdvance(m_rows.heading(column));
    return std::max(content, heading) + 2 * TablePainter::margin(*viewport()) + 1;
}

// What is left of the width goes to the columns that the user has not sized.
void ListTableView::layOutColumns()
{
    const int columns = m_rows.columnCount();
    int left = viewport()->width() - m_geometry.numberWidth;
    int flexible = 0;
    m_geometry.widths.assign(std::size_t(columns), 0);
    for (int column = 0; column < columns; ++column) {
        const int own = m_userWidths[std::size_t(column)];
        m_geometry.widths[std::size_t(column)] = own > 0 ? own : leastWidth(column);
        left -= m_geometry.widths[std::size_t(column)];
        flexible += own == 0;
    }
    for (int column = 0; column < columns && left > 0; ++column) {
        if (m_userWidths[std::size_t(column)] > 0)
            continue;
        const int share = left / flexible--;
        m_geometry.widths[std::size_t(column)] += share;
        left -= share;
    }
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().averageCharWidth() * 4);
    horizontalScrollBar()->setRange(0, std::max(-left, 0));
    m_geometry.scrolledX = horizontalScrollBar()->value();
}

void ListTableView::setColumnWidth(int column, int width)
{
    m_userWidths[std::size_t(column)] = std::max(width, 2 * TablePainter::margin(*viewport()) + 4);
    layOut();
    viewport()->update();
}

void ListTableView::fitColumn(int column)
{
    int width = leastWidth(column);
    for (int row = m_geometry.firstRow; row <= m_geometry.lastVisibleRow(); ++row) {
        if (!m_rows.isThere(row))
            continue;
        const QString text = TablePainter::oneLine(m_rows.text(row, column));
        width = std::max(width,
                         fontMetrics().horizontalAdvance(text) + 2 * TablePainter::margin(*viewport()) + 1);
    }
    setColumnWidth(column, width);
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
    placeEditor();
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
    const TablePainter::State state{m_rows, m_geometry, m_selection, m_gap, m_sortedBy, m_isDescending};
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
    if (event->type() == QEvent::ShortcutOverride && actionFor(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QAbstractScrollArea::event(event);
}

bool ListTableView::isTyping(const QKeyEvent& event) const
{
    const auto without = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return without == Qt::NoModifier && !event.text().isEmpty() && event.text().at(0).isPrint();
}

void ListTableView::keyPressEvent(QKeyEvent* event)
{
    if (m_drag != Drag::None && event->key() == Qt::Key_Escape)
        return endDrag();
    if (QAction* action = actionFor(*event)) {
        action->trigger();
        return;
    }
    if (navigate(*event))
        return;
    const bool isTruth = m_rows.list() && m_rows.access().kind() == ListAccess::Kind::Truth;
    if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier && isTruth)
        emit toggleAsked();
    else if (isTyping(*event) && m_rows.list())
        openCell(event->text());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

bool ListTableView::navigate(const QKeyEvent& event)
{
    const bool isControl = event.modifiers() & Qt::ControlModifier;
    const bool extends = event.modifiers() & Qt::ShiftModifier;
    const int page = std::max(m_geometry.wholeRows() - 1, 1);
    const int last = m_rows.count() - 1;
    const int lastColumn = m_rows.columnCount() - 1;
    TableCell to = m_selection.current();
    switch (event.key()) {
    case Qt::Key_Up:
        to.row = isControl ? 0 : to.row - 1;
        break;
    case Qt::Key_Down:
        to.row = isControl ? last : to.row + 1;
        break;
    case Qt::Key_Left:
        to.column = isControl ? 0 : to.column - 1;
        break;
    case Qt::Key_Right:
        to.column = isControl ? lastColumn : to.column + 1;
        break;
    case Qt::Key_PageUp:
        to.row -= page;
        break;
    case Qt::Key_PageDown:
        to.row = int(std::min<std::int64_t>(std::int64_t(to.row) + page, last));
        break;
    case Qt::Key_Home:
        to = {isControl ? 0 : to.row, 0};
        break;
    case Qt::Key_End:
        to = {isControl ? last : to.row, lastColumn};
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goOn(extends ? CellEditor::End::Up : CellEditor::End::Down);
        return true;
    case Qt::Key_Tab:
        goOn(isControl ? CellEditor::End::Leave : CellEditor::End::Right);
        return true;
    case Qt::Key_Backtab:
        isControl ? emit leaveAsked(false) : goOn(CellEditor::End::Left);
        return true;
    default:
        return false;
    }
    if (event.modifiers() & Qt::AltModifier)
        return false;
    go(to, extends);
    return true;
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

// To the cell after the current one; Tab leaves the table behind its last cell and before its first.
void ListTableView::goOn(CellEditor::End end)
{
    const TableCell at = m_selection.current();
    const int lastColumn = m_rows.columnCount() - 1;
    switch (end) {
    case CellEditor::End::Down:
        return go({at.row + 1, at.column}, false);
    case CellEditor::End::Up:
        return go({at.row - 1, at.column}, false);
    case CellEditor::End::Right:
        if (at.column < lastColumn)
            return go({at.row, at.column + 1}, false);
        if (at.row < m_rows.count() - 1)
            return go({at.row + 1, 0}, false);
        emit leaveAsked(true);
        return;
    case CellEditor::End::Left:
        if (at.column > 0)
            return go({at.row, at.column - 1}, false);
        if (at.row > 0)
            return go({at.row - 1, lastColumn}, false);
        emit leaveAsked(false);
        return;
    case CellEditor::End::Leave:
        emit leaveAsked(true);
        return;
    default:
        return;
    }
}

// --- Typing

void ListTableView::openCell(const QString& typed)
{
    const TableCell cell = m_selection.current();
    if (m_editor || !cell.isValid() || !m_rows.isThere(cell.row))
        return;
    scrollTo(cell);
    m_editor = new CellEditor(cell, m_rows.text(cell.row, cell.column), viewport());
    m_editor->setObjectName(QStringLiteral("cellEditor"));
    m_editor->setAccessibleName(
        tr("row %1, %2").arg(m_rows.elementOf(cell.row)).arg(m_rows.longHeading(cell.column)));
    connect(m_editor, &CellEditor::ended, this, &ListTableView::typingEnded);
    placeEditor();
    m_editor->show();
    m_editor->setFocus();
    m_editor->selectAll();
    if (!typed.isEmpty())
        m_editor->insert(typed);
    if (!typed.isEmpty())
        m_editor->setModified(true);
}

// A cell that is typed is as wide as its column, and wider where its text needs it.
void ListTableView::placeEditor()
{
    if (!m_editor)
        return;
    QRect rect = m_geometry.cell(m_editor->cell()).adjusted(0, 0, -1, -1);
    const int wanted = fontMetrics().horizontalAdvance(TablePainter::oneLine(m_editor->text())) +
                       4 * TablePainter::margin(*viewport()) + 8;
    rect.setWidth(
        std::clamp(wanted, rect.width(), std::max(viewport()->width() - rect.left(), rect.width())));
    const bool isSeen = m_geometry.cellsArea().intersects(rect);
    m_editor->setGeometry(isSeen ? rect
                                 : QRect(-2 * viewport()->width(), 0, rect.width(), m_geometry.rowHeight));
}

void ListTableView::endTyping()
{
    if (m_editor)
        typingEnded(CellEditor::End::FocusLost);
}

void ListTableView::dropTyping()
{
    if (!m_editor)
        return;
    CellEditor* editor = m_editor;
    m_editor = nullptr;
    const bool hadFocus = editor->hasFocus();
    editor->disconnect(this);
    editor->setModified(false);
    if (hadFocus)
        setFocus();
    editor->hide();
    editor->deleteLater();
}

void ListTableView::typingEnded(CellEditor::End end)
{
    const QPointer<CellEditor> editor = m_editor;
    if (!editor)
        return;
    const bool isTaken = isTypingTaken(end);
    if (editor != m_editor || (!isTaken && end != CellEditor::End::FocusLost))
        return;
    dropTyping();
    goOn(end);
}

bool ListTableView::isTypingTaken(CellEditor::End end)
{
    const bool isGivenUp = end == CellEditor::End::Cancelled;
    const bool isUnchanged = m_editor->text() == m_editor->shownText() && end != CellEditor::End::All;
    return isGivenUp || isUnchanged || !m_takeTyped || m_takeTyped(m_editor->cell(), m_editor->text(), end);
}

void ListTableView::editorFollows()
{
    if (!m_editor)
        return;
    const TableCell cell = m_editor->cell();
    if (m_rows.isThere(cell.row)) {
        m_editor->setElsewhere(m_rows.text(cell.row, cell.column));
        return;
    }
    dropTyping();
    emit typingDropped(tr("Row %1 was removed while you typed in it.").arg(cell.row));
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
    endTyping();
    const TableGeometry::Place place = m_geometry.placeAt(event->pos());
    if (event->button() == Qt::LeftButton) {
        m_dragPosition = event->pos();
        pressIn(place, event->modifiers());
    } else if (event->button() == Qt::RightButton && place.area == TableGeometry::Area::Cells &&
               !m_selection.contains(place.cell)) {
        go(place.cell, false);
    } else if (event->button() == Qt::RightButton && place.area == TableGeometry::Area::Numbers &&
               !m_selection.contains(place.cell)) {
        pressOnNumber(place.cell, {});
        endDrag();
    }
}

void ListTableView::pressIn(const TableGeometry::Place& place, Qt::KeyboardModifiers modifiers)
{
    switch (place.area) {
    case TableGeometry::Area::Cells:
        return pressOnCell(place.cell, modifiers);
    case TableGeometry::Area::Numbers:
        return pressOnNumber({place.cell.row, std::max(m_selection.current().column, 0)}, modifiers);
    case TableGeometry::Area::Headings:
        return pressOnHeading(place, modifiers);
    case TableGeometry::Area::Corner:
        if (m_rows.count() > 0)
            m_selection.selectRange({0, 0, m_rows.count() - 1, m_rows.columnCount() - 1},
                                    m_selection.current());
        return selectionHasChanged();
    case TableGeometry::Area::Nowhere:
        return;
    }
}

void ListTableView::pressOnCell(TableCell cell, Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::ShiftModifier)
        m_selection.extendTo(cell);
    else if (modifiers & Qt::ControlModifier)
        m_selection.add(cell);
    else
        m_selection.select(cell);
    m_drag = Drag::Cells;
    selectionHasChanged();
}

// Whole rows that are selected already can be dragged elsewhere.
void ListTableView::pressOnNumber(TableCell cell, Qt::KeyboardModifiers modifiers)
{
    const int columns = m_rows.columnCount();
    const bool isPlain = !(modifiers & (Qt::ShiftModifier | Qt::ControlModifier));
    m_drag = Drag::Rows;
    if (isPlain && m_selection.contains(cell) && m_selection.isOfWholeRows(columns) &&
        m_rows.order().isNatural()) {
        m_drag = Drag::Move;
        return;
    }
    if (modifiers & Qt::ShiftModifier && m_selection.current().isValid())
        m_selection.selectRows(m_selection.ranges().empty() ? cell.row : m_selection.ranges().back().top,
                               cell.row, columns, cell.column);
    else if (modifiers & Qt::ControlModifier)
        m_selection.addRows(cell.row, cell.row, columns, cell.column);
    else
        m_selection.selectRows(cell.row, cell.row, columns, cell.column);
    selectionHasChanged();
}

void ListTableView::pressOnHeading(const TableGeometry::Place& place, Qt::KeyboardModifiers modifiers)
{
    if (place.edgeOf >= 0) {
        m_drag = Drag::Column;
        m_draggedColumn = place.edgeOf;
        m_dragStart = columnWidth(place.edgeOf);
        return;
    }
    if (m_rows.count() == 0 || !place.cell.isValid())
        return;
    CellRange range{0, place.cell.column, m_rows.count() - 1, place.cell.column};
    if (modifiers & Qt::ShiftModifier && m_selection.current().isValid()) {
        range.left = std::min(range.left, m_selection.current().column);
        range.right = std::max(range.right, m_selection.current().column);
        m_selection.selectRange(range, m_selection.current());
    } else {
        m_selection.selectRange(range, {std::max(m_selection.current().row, 0), place.cell.column});
    }
    selectionHasChanged();
}

void ListTableView::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drag == Drag::None) {
        setCursorFor(m_geometry.placeAt(event->pos()));
        return;
    }
    const bool isOutside = !m_geometry.cellsArea().contains(event->pos());
    if (isOutside && m_drag != Drag::Column && !m_autoScroll.isActive())
        m_autoScroll.start(AutoScrollInterval, this);
    else if (!isOutside)
        m_autoScroll.stop();
    dragTo(event->pos());
}

void ListTableView::dragTo(QPoint position)
{
    const TableCell cell = m_geometry.nearestCell(position);
    if (m_drag == Drag::Column) {
        setColumnWidth(m_draggedColumn, m_dragStart + position.x() - m_dragPosition.x());
    } else if (m_drag == Drag::Move) {
        m_gap = m_geometry.gapAt(position);
        viewport()->update();
    } else if (cell.isValid() && cell != m_selection.current()) {
        m_selection.extendTo(m_drag == Drag::Rows ? TableCell{cell.row, m_selection.current().column} : cell);
        selectionHasChanged();
    }
}

void ListTableView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_autoScroll.timerId())
        return QAbstractScrollArea::timerEvent(event);
    const QPoint position = viewport()->mapFromGlobal(QCursor::pos());
    const QRect area = m_geometry.cellsArea();
    if (position.y() < area.top())
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (position.y() > area.bottom())
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    if (m_drag == Drag::Cells && position.x() > area.right())
        horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    else if (m_drag == Drag::Cells && position.x() < area.left())
        horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    dragTo(position);
}

void ListTableView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const Drag drag = m_drag;
    const int gap = m_gap;
    endDrag();
    if (drag != Drag::Move)
        return;
    if (gap >= 0) {
        emit rowsDropped(gap);
    } else { // a click among the selected rows selects this one
        const TableCell cell = m_geometry.placeAt(event->pos()).cell;
        m_selection.selectRows(cell.row, cell.row, m_rows.columnCount(),
                               std::max(m_selection.current().column, 0));
        selectionHasChanged();
    }
}

void ListTableView::endDrag()
{
    m_autoScroll.stop();
    m_drag = Drag::None;
    m_gap = -1;
    viewport()->update();
}

void ListTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const TableGeometry::Place place = m_geometry.placeAt(event->pos());
    if (event->button() != Qt::LeftButton)
        return;
    if (place.area == TableGeometry::Area::Headings && place.edgeOf >= 0)
        return fitColumn(place.edgeOf);
    if (place.area == TableGeometry::Area::Numbers) {
        emit chooseAsked();
        return;
    }
    if (place.area != TableGeometry::Area::Cells)
        return;
    go(place.cell, false);
    switch (m_rows.access().kind()) {
    case ListAccess::Kind::Truth:
        emit toggleAsked();
        return;
    case ListAccess::Kind::Choice:
    case ListAccess::Kind::Flags:
        emit chooseAsked();
        return;
    default:
        openCell();
    }
}

void ListTableView::setCursorFor(const TableGeometry::Place& place)
{
    viewport()->setCursor(place.edgeOf >= 0 ? Qt::SplitHCursor : Qt::ArrowCursor);
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
