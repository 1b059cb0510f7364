// SPDX-License-Identifier: MIT
#include "table/TablePainter.h"

#include <QPainter>
#include <QStyle>
#include <QWidget>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr int LongestText = 400; // characters of a text that are painted at most

QColor mixed(const QColor& a, const QColor& b, double share)
{
    const auto part = [share](int x, int y) { return int(x + (y - x) * share); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

} // namespace

TablePainter::TablePainter(QPainter& painter, const QWidget& widget, const State& state)
    : m_painter(painter)
    , m_widget(widget)
    , m_state(state)
    , m_margin(margin(widget))
    , m_isActive(widget.hasFocus() || widget.isAncestorOf(widget.focusWidget()))
{
}

int TablePainter::margin(const QWidget& widget)
{
    return widget.fontMetrics().averageCharWidth() / 2 + 2;
}

QString TablePainter::oneLine(const QString& text)
{
    QString line = text.left(LongestText);
    line.replace('\n', QChar(0x21b5)); // ↵
    return line;
}

void TablePainter::paint()
{
    paintCells();
    paintCurrent();
    paintNumbers();
    paintHeadings();
    paintGap();
}

void TablePainter::paintCells()
{
    const TableGeometry& geometry = m_state.geometry;
    m_painter.save();
    m_painter.setClipRect(geometry.cellsArea());
    for (int row = geometry.firstRow; row <= geometry.lastVisibleRow(); ++row) {
        for (int column = 0; column < int(geometry.widths.size()); ++column) {
            const QRect rect = geometry.cell({row, column});
            if (rect.right() >= geometry.numberWidth && rect.left() < geometry.viewport.width())
                paintCell({row, column}, rect);
        }
    }
    m_painter.restore();
}

void TablePainter::paintCell(TableCell cell, const QRect& rect)
{
    const QPalette& palette = m_widget.palette();
    const bool isSelected = m_state.selection.contains(cell);
    const QPalette::ColorGroup group = m_isActive ? QPalette::Active : QPalette::Inactive;
    if (isSelected)
        m_painter.fillRect(rect, palette.color(group, QPalette::Highlight));
    m_painter.setPen(mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.15));
    m_painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    m_painter.drawLine(rect.topRight(), rect.bottomRight());
    if (!m_state.rows.isThere(cell.row))
        return;
    if (m_state.rows.access().kind() == ListAccess::Kind::Truth) {
        const int element = m_state.rows.elementOf(cell.row);
        paintTruth(rect, m_state.rows.access().number(*m_state.rows.list(), element, 0) != 0, isSelected);
        return;
    }
    m_painter.setPen(palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
    paintText(rect.adjusted(m_margin, 0, -m_margin, 0), cell);
}

// By hand: the box of a style is outlined for the window's colour, not for that of a cell.
void TablePainter::paintTruth(const QRect& rect, bool isTrue, bool isSelected)
{
    const QPalette& palette = m_widget.palette();
    const QColor ink = palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor ground = palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
    const int side = m_widget.fontMetrics().height() * 3 / 4;
    const QRectF box = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, {side, side}, rect);
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setPen(QPen(mixed(ground, ink, 0.5), std::max(side / 12.0, 1.0)));
    m_painter.drawRoundedRect(box, side / 6.0, side / 6.0);
    if (isTrue) {
        const QPointF tick[] = {box.topLeft() + QPointF(side * 0.22, side * 0.55),
                                box.topLeft() + QPointF(side * 0.42, side * 0.76),
                                box.topLeft() + QPointF(side * 0.80, side * 0.26)};
        m_painter.setPen(QPen(ink, std::max(side / 7.0, 1.5), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_painter.drawPolyline(tick, 3);
    }
    m_painter.restore();
}

void TablePainter::paintText(const QRect& rect, TableCell cell)
{
    const bool isNumber = m_state.rows.access().kind() == ListAccess::Kind::Number;
    const auto side = isNumber ? Qt::AlignRight : Qt::AlignLeft;
    m_painter.drawText(rect, int(Qt::AlignVCenter | side | Qt::TextSingleLine), fitting(cell, rect.width()));
}

// Numbers lose digits, or are crossed out: one with its end cut off would be another number.
QString TablePainter::fitting(TableCell cell, int width) const
{
    const QFontMetrics metrics = m_widget.fontMetrics();
    if (m_state.rows.access().kind() != ListAccess::Kind::Number)
        return metrics.elidedText(oneLine(m_state.rows.shortText(cell.row, cell.column, 0)), Qt::ElideRight,
                                  width);
    QString text = m_state.rows.text(cell.row, cell.column);
    for (int digits = 6; digits > 0 && metrics.horizontalAdvance(text) > width; --digits)
        text = m_state.rows.shortText(cell.row, cell.column, digits);
    if (metrics.horizontalAdvance(text) <= width)
        return text;
    return QString(std::max(width / metrics.horizontalAdvance('#'), 1), '#');
}

void TablePainter::paintHeadings()
{
    const TableGeometry& geometry = m_state.geometry;
    const QPalette& palette = m_widget.palette();
    const QRect strip(0, 0, geometry.viewport.width(), geometry.headingHeight);
    m_painter.fillRect(strip, palette.color(QPalette::Window));
    m_painter.setPen(palette.color(QPalette::Mid));
    m_painter.drawLine(strip.bottomLeft(), strip.bottomRight());
    m_painter.save();
    m_painter.setClipRect(strip.adjusted(geometry.numberWidth, 0, 0, 0));
    for (int column = 0; column < int(geometry.widths.size()); ++column) {
        const QRect rect = geometry.heading(column);
        m_painter.setPen(palette.color(QPalette::Mid));
        m_painter.drawLine(rect.topRight(), rect.bottomRight());
        QString text = m_state.rows.heading(column);
        if (column == m_state.sortedBy)
            text += m_state.isDescending ? QStringLiteral(" \u25be") : QStringLiteral(" \u25b4");
        m_painter.setPen(palette.color(QPalette::WindowText));
        const int width = rect.width() - 2 * m_margin;
        m_painter.drawText(rect, Qt::AlignCenter,
                           m_widget.fontMetrics().elidedText(text, Qt::ElideRight, width));
    }
    m_painter.restore();
}

void TablePainter::paintNumbers()
{
    const TableGeometry& geometry = m_state.geometry;
    const QPalette& palette = m_widget.palette();
    const QRect strip(0, geometry.headingHeight, geometry.numberWidth, geometry.viewport.height());
    m_painter.fillRect(strip, palette.color(QPalette::Window));
    m_painter.setPen(palette.color(QPalette::Mid));
    m_painter.drawLine(strip.topRight(), strip.bottomRight());
    for (int row = geometry.firstRow; row <= geometry.lastVisibleRow(); ++row)
        paintNumber(row);
}

void TablePainter::paintNumber(int row)
{
    const QPalette& palette = m_widget.palette();
    QRect rect = m_state.geometry.number(row).adjusted(m_margin, 0, -m_margin, 0);
    if (!m_state.rows.isThere(row))
        return;
    const QColor swatch = m_state.rows.swatch(row);
    if (swatch.isValid()) {
        const int side = rect.height() - 4;
        const QRect box(rect.left(), rect.top() + 2, side, side);
        m_painter.fillRect(box, swatch);
        m_painter.setPen(palette.color(QPalette::Mid));
        m_painter.drawRect(box.adjusted(0, 0, -1, -1));
    }
    QFont font = m_widget.font();
    font.setBold(row == m_state.selection.current().row);
    m_painter.setFont(font);
    m_painter.setPen(palette.color(QPalette::WindowText));
    m_painter.drawText(rect, Qt::AlignVCenter | Qt::AlignRight, QString::number(m_state.rows.elementOf(row)));
    m_painter.setFont(m_widget.font());
}

void TablePainter::paintCurrent()
{
    const QRect rect = m_state.geometry.cell(m_state.selection.current());
    if (rect.isEmpty())
        return;
    m_painter.save();
    m_painter.setClipRect(m_state.geometry.cellsArea());
    const QPalette::ColorRole role = m_isActive ? QPalette::Text : QPalette::Mid;
    m_painter.setPen(QPen(m_widget.palette().color(role), 1));
    m_painter.drawRect(rect.adjusted(0, 0, -1, -1));
    m_painter.drawRect(rect.adjusted(1, 1, -2, -2));
    m_painter.restore();
}

void TablePainter::paintGap()
{
    if (m_state.gap < 0)
        return;
    const TableGeometry& geometry = m_state.geometry;
    const int y = geometry.headingHeight + (m_state.gap - geometry.firstRow) * geometry.rowHeight;
    m_painter.fillRect(QRect(0, y - 1, geometry.viewport.width(), 3),
                       m_widget.palette().color(QPalette::Highlight));
}

} // namespace inspector
