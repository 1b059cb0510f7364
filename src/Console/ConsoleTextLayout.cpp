// SPDX-License-Identifier: MIT
#include "ConsoleTextLayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextDocument>
#include <QTextLayout>

#include <cmath>

namespace
{

// What of the selections falls into the block, in the block's own positions.
QVector<QTextLayout::FormatRange> selectionsIn(const QTextBlock& block,
                                               const QAbstractTextDocumentLayout::PaintContext& context)
{
    QVector<QTextLayout::FormatRange> ranges;
    for (const auto& selection : context.selections) {
        const int start = qMax(selection.cursor.selectionStart() - block.position(), 0);
        const int end = qMin(selection.cursor.selectionEnd() - block.position(), block.length());
        if (start < end)
            ranges.append({start, end - start, selection.format});
    }
    return ranges;
}

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

// The whole block in the light shade of its colour, for the colours of the texts are dark ones.
QTextLayout::FormatRange lightenedBlock(const QTextBlock& block)
{
    const QColor color = block.charFormat().foreground().color();
    QTextCharFormat format;
    format.setForeground(QColor::fromHsl(color.hslHue(), color.hslSaturation(),
                                         qMax(color.lightness(), 255 - color.lightness())));
    return {0, block.length() - 1, format};
}

} // namespace

ConsoleTextLayout::ConsoleTextLayout(QTextDocument* document)
    : QAbstractTextDocumentLayout(document)
    , m_announcement(new QTimer(this))
{
    m_announcement->setSingleShot(true);
    connect(m_announcement, &QTimer::timeout, this, &ConsoleTextLayout::announce);
}

qreal ConsoleTextLayout::rowHeight() const
{
    return std::ceil(QFontMetricsF(document()->defaultFont()).lineSpacing());
}

void ConsoleTextLayout::draw(QPainter* painter, const PaintContext& context)
{
    painter->setPen(context.palette.color(QPalette::Text));
    const bool dark = isDark(context.palette);
    const QRectF clip = context.clip.isValid() ? context.clip : QRectF(QPointF(), documentSize());
    for (QTextBlock block = blockAt(clip.top()); block.isValid() && top(block) <= clip.bottom();
         block = block.next()) {
        layOut(block);
        auto ranges = selectionsIn(block, context);
        if (dark)
            ranges.prepend(lightenedBlock(block));
        block.layout()->draw(painter, QPointF(0, top(block)), ranges, clip);
    }
}

int ConsoleTextLayout::hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const
{
    const QTextBlock block = blockAt(point.y());
    if (accuracy == Qt::ExactHit && !blockBoundingRect(block).contains(point))
        return -1;
    layOut(block);
    const QTextLayout& layout = *block.layout();
    const int row = qBound(0, int((point.y() - top(block)) / rowHeight()), layout.lineCount() - 1);
    return block.position() + layout.lineAt(row).xToCursor(point.x());
}

int ConsoleTextLayout::pageCount() const
{
    return 1;
}

QSizeF ConsoleTextLayout::documentSize() const
{
    return {qMax<qreal>(document()->pageSize().width(), 0),
            document()->lineCount() * rowHeight() + 2 * margin()};
}

QRectF ConsoleTextLayout::frameBoundingRect(QTextFrame*) const
{
    return {QPointF(), documentSize()};
}

QRectF ConsoleTextLayout::blockBoundingRect(const QTextBlock& block) const
{
    if (!block.isValid())
        return {};
    layOut(block);
    return {0, top(block), rowWidth() + 2 * margin(), block.lineCount() * rowHeight()};
}

void ConsoleTextLayout::documentChanged(int from, int, int charsAdded)
{
    const QTextBlock end = document()->findBlock(from + charsAdded).next();
    for (QTextBlock block = document()->findBlock(from); block.isValid() && block != end;
         block = block.next())
        block.clearLayout();
    if (!m_announcement->isActive())
        m_announcement->start(0);
}

qreal ConsoleTextLayout::margin() const
{
    return document()->documentMargin();
}

qreal ConsoleTextLayout::rowWidth() const
{
    const qreal page = document()->pageSize().width();
    return page > 0 ? qMax<qreal>(std::floor(page - 2 * margin()), 1) : QWIDGETSIZE_MAX;
}

qreal ConsoleTextLayout::top(const QTextBlock& block) const
{
    return margin() + block.firstLineNumber() * rowHeight();
}

QTextBlock ConsoleTextLayout::blockAt(qreal y) const
{
    const int row = qBound(0, int((y - margin()) / rowHeight()), document()->lineCount() - 1);
    return document()->findBlockByLineNumber(row);
}

bool ConsoleTextLayout::isLaidOut(const QTextLayout& layout) const
{
    return layout.lineCount() > 0 && layout.lineAt(0).width() == rowWidth();
}

void ConsoleTextLayout::layOut(QTextBlock block) const
{
    QTextLayout& layout = *block.layout();
    if (isLaidOut(layout))
        return;
    breakIntoRows(layout);
    if (block.lineCount() == layout.lineCount())
        return;
    block.setLineCount(layout.lineCount());
    m_announcement->start(0);
}

void ConsoleTextLayout::breakIntoRows(QTextLayout& layout) const
{
    QTextOption option = document()->defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
        row.setLineWidth(rowWidth());
        row.setPosition({margin(), row.lineNumber() * rowHeight()});
    }
    layout.endLayout();
}

void ConsoleTextLayout::announce()
{
    emit documentSizeChanged(documentSize());
    emit update();
}
