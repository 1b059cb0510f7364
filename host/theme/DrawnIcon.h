// SPDX-License-Identifier: MIT
// Makes icons out of a few strokes of a painter, sharp at normal and at double density.
#pragma once

#include <QIcon>
#include <QPainter>

namespace scopix
{

/// `draw` paints on a square of `size` by `size`, without a pen at first.
template <class Draw>
void addDrawing(QIcon& icon, QIcon::Mode mode, int size, Draw draw)
{
    for (const int scale : {1, 2}) {
        QPixmap pixmap(size * scale, size * scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(scale, scale);
        painter.setPen(Qt::NoPen);
        draw(painter);
        painter.end();
        icon.addPixmap(pixmap, mode);
    }
}

/// An icon that keeps its colours in a selected row, which styles would tint.
template <class Draw>
QIcon drawnIcon(int size, Draw draw)
{
    QIcon icon;
    addDrawing(icon, QIcon::Normal, size, draw);
    addDrawing(icon, QIcon::Selected, size, draw);
    return icon;
}

} // namespace scopix
