// SPDX-License-Identifier: MIT
#include "theme/ActionIcons.h"

#include "theme/DrawnIcon.h"

#include <QPainterPath>

namespace scopix
{

namespace
{

constexpr int Size = 18;
const QColor Ink(0x6f, 0x7b, 0x88);
const QColor Accent(0x4a, 0x90, 0xd9);

QPen stroke(const QColor& color)
{
    return {color, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawBackArrow(QPainter& p)
{
    QPainterPath path(QPointF(3.5, 7));
    path.lineTo(11, 7);
    path.arcTo(QRectF(7, 7, 8, 8), 90, -180);
    path.lineTo(6, 15);
    p.setPen(stroke(Accent));
    p.drawPath(path);
    p.drawPolyline(QPolygonF({{7, 3.4}, {3.4, 7}, {7, 10.6}}));
}

void drawCorners(QPainter& p)
{
    p.setPen(stroke(Ink));
    for (int i = 0; i < 4; ++i) {
        p.drawPolyline(QPolygonF({{2.5, 6}, {2.5, 2.5}, {6, 2.5}}));
        p.translate(Size / 2.0, Size / 2.0);
        p.rotate(90);
        p.translate(-Size / 2.0, -Size / 2.0);
    }
}

} // namespace

QIcon openIcon()
{
    return drawnIcon(Size, [](QPainter& p) {
        p.setBrush(QColor(0xe0, 0xa8, 0x3a));
        p.drawPolygon(QPolygonF({{2, 4}, {7, 4}, {8.5, 6}, {15, 6}, {15, 14.5}, {2, 14.5}}));
        p.setBrush(QColor(0xf2, 0xc4, 0x62));
        p.drawPolygon(QPolygonF({{5, 8.5}, {17.2, 8.5}, {14.6, 15}, {2.2, 15}}));
    });
}

QIcon undoIcon()
{
    return drawnIcon(Size, drawBackArrow);
}

QIcon redoIcon()
{
    return drawnIcon(Size, [](QPainter& p) {
        p.translate(Size, 0);
        p.scale(-1, 1);
        drawBackArrow(p);
    });
}

QIcon viewAllIcon()
{
    return drawnIcon(Size, [](QPainter& p) {
        drawCorners(p);
        p.setPen(Qt::NoPen);
        p.setBrush(Accent);
        p.drawEllipse(QPointF(6.6, 10.4), 2.2, 2.2);
        p.drawRect(QRectF(9.6, 6, 4, 4));
    });
}

QIcon viewSelectedIcon()
{
    return drawnIcon(Size, [](QPainter& p) {
        drawCorners(p);
        p.setPen(Qt::NoPen);
        p.setBrush(Accent);
        p.drawEllipse(QPointF(9, 9), 3.2, 3.2);
    });
}

QIcon wireframeIcon()
{
    return drawnIcon(Size, [](QPainter& p) {
        p.setBrush(Qt::NoBrush);
        p.setPen(stroke(Ink));
        p.drawPolygon(QPolygonF({{9, 2.5}, {15.5, 5.5}, {15.5, 12.5}, {9, 15.5}, {2.5, 12.5}, {2.5, 5.5}}));
        p.setPen(stroke(Accent));
        p.drawPolyline(QPolygonF({{2.5, 5.5}, {9, 8.5}, {15.5, 5.5}}));
        p.drawLine(QPointF(9, 8.5), QPointF(9, 15.5));
    });
}

QIcon statisticsIcon()
{
    return drawnIcon(Size, [](QPainter& p) {
        p.setPen(Qt::NoPen);
        p.setBrush(Ink);
        p.drawRect(QRectF(3, 9, 3, 6.5));
        p.drawRect(QRectF(12, 6, 3, 9.5));
        p.setBrush(Accent);
        p.drawRect(QRectF(7.5, 3, 3, 12.5));
    });
}

} // namespace scopix
