// SPDX-License-Identifier: MIT
#include "console/LogView.h"

#include "console/LogModel.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

namespace profiler
{

namespace
{

constexpr int Margin = 4;
// What is copied at once, in characters: more than anything takes that text is pasted to.
constexpr int MostCopied = 100 << 20;

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

} // namespace

LogView::LogView(LogModel& model, QWidget* parent)
    : QListView(parent)
    , m_model(model)
{
    takeFont();
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerItem);
    setModel(&model);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (!m_isScrolling)
            m_isFollowing = value >= verticalScrollBar()->maximum();
    });
    // What the user looks at stays in its place when the oldest lines go.
    connect(&model, &LogModel::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
        const QScopedValueRollback<bool> scrolling(m_isScrolling, true);
        if (!m_isFollowing)
            verticalScrollBar()->setValue(verticalScrollBar()->value() - (last - first + 1));
    });
}

// Columns of figures stand below each other; the size is that of everything around.
void LogView::takeFont()
{
    QFont font;
    font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    if (!QFontInfo(font).fixedPitch())
        font.setFamily(QString::fromLatin1("monospace"));
    font.setStyleHint(QFont::Monospace);
    setFont(font);
}

int LogView::rowHeight() const
{
    return fontMetrics().height() + 2;
}

int LogView::rowsPerPage() const
{
    return std::max(1, viewport()->height() / rowHeight());
}

void LogView::setMarked(const QString& text)
{
    m_marked = text;
    viewport()->update();
}

void LogView::goTo(int row)
{
    const QModelIndex index = m_model.index(row);
    if (!index.isValid())
        return;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index, PositionAtCenter);
}

int LogView::copySelected() const
{
    QString text;
    int count = 0;
    QItemSelection ranges = selectionModel()->selection();
    std::sort(ranges.begin(), ranges.end(),
              [](const QItemSelectionRange& a, const QItemSelectionRange& b) { return a.top() < b.top(); });
    for (const QItemSelectionRange& range : qAsConst(ranges)) {
        for (int row = range.top(); row <= range.bottom() && text.size() < MostCopied; ++row, ++count)
            text += m_model.copyOf(row) + QLatin1Char('\n');
    }
    if (count > 0)
        QApplication::clipboard()->setText(text);
    return count;
}

QRect LogView::visualRect(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    const int row = index.row() - verticalScrollBar()->value();
    const int width = std::max(m_widest, viewport()->width());
    return {-horizontalOffset(), row * rowHeight(), width, rowHeight()};
}

void LogView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!index.isValid())
        return;
    const int page = rowsPerPage();
    const int top = verticalScrollBar()->value();
    const int row = index.row();
    if (hint == PositionAtTop)
        verticalScrollBar()->setValue(row);
    else if (hint == PositionAtBottom)
        verticalScrollBar()->setValue(row - page + 1);
    else if (hint == PositionAtCenter)
        verticalScrollBar()->setValue(row - page / 2);
    else if (row < top)
        verticalScrollBar()->setValue(row);
    else if (row >= top + page)
        verticalScrollBar()->setValue(row - page + 1);
}

QModelIndex LogView::indexAt(const QPoint& point) const
{
    const int row = verticalScrollBar()->value() + point.y() / rowHeight();
    return point.y() < 0 ? QModelIndex() : m_model.index(row);
}

// Rows need no layout: they all have one height.
void LogView::doItemsLayout()
{
    updateGeometries();
    viewport()->update();
}

void LogView::rowsInserted(const QModelIndex& parent, int start, int end)
{
    QAbstractItemView::rowsInserted(parent, start, end);
    updateGeometries();
    viewport()->update();
}

void LogView::updateGeometries()
{
    const QScopedValueRollback<bool> scrolling(m_isScrolling, true);
    QScrollBar* vertical = verticalScrollBar();
    vertical->setPageStep(rowsPerPage());
    vertical->setRange(0, std::max(0, m_model.rowCount() - rowsPerPage()));
    horizontalScrollBar()->setPageStep(viewport()->width());
    horizontalScrollBar()->setSingleStep(fontMetrics().averageCharWidth() * 4);
    horizontalScrollBar()->setRange(0, std::max(0, m_widest - viewport()->width()));
    if (m_isFollowing)
        vertical->setValue(vertical->maximum());
}

int LogView::horizontalOffset() const
{
    return horizontalScrollBar()->value();
}

int LogView::verticalOffset() const
{
    return verticalScrollBar()->value() * rowHeight();
}

bool LogView::isIndexHidden(const QModelIndex&) const
{
    return false;
}

QModelIndex LogView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int rows = m_model.rowCount();
    if (rows == 0)
        return {};
    const int now = currentIndex().isValid() ? currentIndex().row() : verticalScrollBar()->value();
    switch (action) {
    case MoveUp:
    case MovePrevious:
        return m_model.index(std::max(0, now - 1));
    case MoveDown:
    case MoveNext:
        return m_model.index(std::min(rows - 1, currentIndex().isValid() ? now + 1 : now));
    case MovePageUp:
        return m_model.index(std::max(0, now - rowsPerPage()));
    case MovePageDown:
        return m_model.index(std::min(rows - 1, now + rowsPerPage()));
    case MoveHome:
        return m_model.index(0);
    case MoveEnd:
        return m_model.index(rows - 1);
    default:
        return m_model.index(now);
    }
}

void LogView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags)
{
    const int top = verticalScrollBar()->value();
    const auto rowAt = [&](int y) {
        const int row = top + (y >= 0 ? y / rowHeight() : (y - rowHeight() + 1) / rowHeight());
        return std::clamp(row, 0, std::max(0, m_model.rowCount() - 1));
    };
    if (m_model.rowCount() == 0)
        return;
    const QRect area = rect.normalized();
    selectionModel()->select(
        QItemSelection(m_model.index(rowAt(area.top())), m_model.index(rowAt(area.bottom()))), flags);
}

QRegion LogView::visualRegionForSelection(const QItemSelection& selection) const
{
    QRegion region;
    for (const QItemSelectionRange& range : selection)
        region += visualRect(range.topLeft()) | visualRect(range.bottomRight());
    return region & viewport()->rect();
}

void LogView::scrollContentsBy(int, int)
{
    viewport()->update();
}

void LogView::resizeEvent(QResizeEvent* event)
{
    QAbstractItemView::resizeEvent(event);
    updateGeometries();
}

void LogView::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        m_widest = 0;
        updateGeometries();
    }
}

void LogView::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->matches(QKeySequence::Copy))
        copySelected();
    else if (isEnter && currentIndex().isValid())
        emit lineActivated(currentIndex().row());
    else
        QListView::keyPressEvent(event);
}

void LogView::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (index.isValid() && event->button() == Qt::LeftButton)
        emit lineActivated(index.row());
}

void LogView::paintEvent(QPaintEvent*)
{
    QPainter painter(viewport());
    const int first = verticalScrollBar()->value();
    const int last = std::min(m_model.rowCount() - 1, first + rowsPerPage() + 1);
    const int widest = m_widest;
    for (int row = first; row <= last; ++row)
        paintRow(painter, row, visualRect(m_model.index(row)));
    if (m_widest > widest)
        QMetaObject::invokeMethod(
            this, [this] { updateGeometries(); }, Qt::QueuedConnection);
}

void LogView::paintRow(QPainter& painter, int row, const QRect& place)
{
    const QModelIndex index = m_model.index(row);
    const bool isSelected = selectionModel()->isSelected(index);
    if (isSelected)
        painter.fillRect(place, palette().highlight());
    const QRect line = place.adjusted(Margin, 0, -Margin, 0);
    const int count = int(m_model.getRows()[row].count);
    const QString folded = count > 1 ? tr("%1× ").arg(count) : QString();
    const QString before = m_model.prefixOf(row) + folded;
    const QString text = m_model.textOf(row);
    const int start = fontMetrics().horizontalAdvance(before);
    const QRect rest = line.adjusted(start, 0, 0, 0);
    if (!isSelected)
        paintMarks(painter, text, rest);
    painter.setPen(palette().color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    painter.drawText(line, Qt::AlignVCenter | Qt::TextSingleLine, before);
    painter.setPen(colorOf(row, isSelected));
    painter.drawText(rest, Qt::AlignVCenter | Qt::TextSingleLine, text);
    if (index == currentIndex() && hasFocus()) {
        painter.setPen(palette().color(QPalette::Text));
        painter.drawRect(place.intersected(viewport()->rect()).adjusted(0, 0, -1, -1));
    }
    m_widest = std::max(m_widest, start + fontMetrics().horizontalAdvance(text) + 2 * Margin);
}

void LogView::paintMarks(QPainter& painter, const QString& text, const QRect& place)
{
    if (m_marked.isEmpty())
        return;
    const QColor mark = isDark(palette()) ? QColor(0x6a5a00) : QColor(0xffe680);
    for (int at = text.indexOf(m_marked, 0, Qt::CaseInsensitive); at >= 0;
         at = text.indexOf(m_marked, at + m_marked.size(), Qt::CaseInsensitive)) {
        const int left = fontMetrics().horizontalAdvance(text, at);
        const int width = fontMetrics().horizontalAdvance(text.mid(at, m_marked.size()));
        painter.fillRect(QRect(place.left() + left, place.top(), width, place.height()), mark);
    }
}

QColor LogView::colorOf(int row, bool isSelected) const
{
    if (isSelected)
        return palette().color(QPalette::HighlightedText);
    if (m_model.getRows()[row].isContext)
        return palette().color(QPalette::PlaceholderText);
    const bool dark = isDark(palette());
    switch (m_model.kindOf(row)) {
    case LogKind::Error:
        return dark ? QColor(0xff8a80) : QColor(0xa01010);
    case LogKind::Warning:
        return dark ? QColor(0xe6c34a) : QColor(0x765600);
    case LogKind::Info:
        return dark ? QColor(0x7fc97f) : QColor(0x17681e);
    default:
        return palette().color(QPalette::Text);
    }
}

} // namespace profiler
