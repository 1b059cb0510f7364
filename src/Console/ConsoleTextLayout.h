// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTimer>

/// Lays out a long text of plain paragraphs for a QTextEdit: a paragraph only when it is looked at, in rows
/// of one height, so that adding and dropping paragraphs costs the same however many there are. What changed
/// is announced to the view once per turn of the event loop. On a dark background it paints the texts in the
/// light shades of their colours, which the document keeps as they are.
class ConsoleTextLayout : public QAbstractTextDocumentLayout
{
    Q_OBJECT

public:
    explicit ConsoleTextLayout(QTextDocument* document);

    /// Pixels; also those of a row that is not laid out yet.
    qreal rowHeight() const;

    void draw(QPainter* painter, const PaintContext& context) override;
    int hitTest(const QPointF& point, Qt::HitTestAccuracy accuracy) const override;
    int pageCount() const override;
    QSizeF documentSize() const override;
    QRectF frameBoundingRect(QTextFrame* frame) const override;
    QRectF blockBoundingRect(const QTextBlock& block) const override;

protected:
    void documentChanged(int from, int charsRemoved, int charsAdded) override;

private:
    qreal margin() const;
    qreal rowWidth() const;
    qreal top(const QTextBlock& block) const;
    QTextBlock blockAt(qreal y) const;
    bool isLaidOut(const QTextLayout& layout) const;
    void layOut(QTextBlock block) const;
    void breakIntoRows(QTextLayout& layout) const;
    void announce();

    QTimer* m_announcement;
};
