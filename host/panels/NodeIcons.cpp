// SPDX-License-Identifier: MIT
#include "panels/NodeIcons.h"

#include "text/NodeText.h"
#include "theme/DrawnIcon.h"

#include <QHash>
#include <QPainterPath>

namespace scopix
{

namespace
{

// Drawn on a square of 16 by 16.
using Draw = void (*)(QPainter& painter);

struct Kind {
    const char* type; // and all derived ones
    QRgb color;
    Draw draw;
};

void drawStack(QPainter& p)
{
    p.drawRoundedRect(QRectF(2, 2, 8, 8), 2, 2);
    p.setOpacity(0.55);
    p.drawRoundedRect(QRectF(6, 6, 8, 8), 2, 2);
}

void drawSealedStack(QPainter& p)
{
    p.drawRoundedRect(QRectF(4.5, 4.5, 7, 7), 1.5, 1.5);
    p.setPen(QPen(p.brush().color(), 1.4));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(1.7, 1.7, 12.6, 12.6), 3, 3);
}

void drawArrows(QPainter& p)
{
    p.setPen(QPen(p.brush().color(), 1.8, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(3, 13), QPointF(3, 4));
    p.drawLine(QPointF(3, 13), QPointF(12, 13));
    p.drawLine(QPointF(3, 13), QPointF(9, 7));
    p.setPen(Qt::NoPen);
    p.drawPolygon(QPolygonF({{3, 1}, {0.6, 5}, {5.4, 5}}));
    p.drawPolygon(QPolygonF({{15, 13}, {11, 10.6}, {11, 15.4}}));
}

void drawBall(QPainter& p)
{
    QRadialGradient gradient(QPointF(6, 5.5), 9);
    gradient.setColorAt(0, p.brush().color().lighter(160));
    gradient.setColorAt(1, p.brush().color().darker(130));
    p.setBrush(gradient);
    p.drawEllipse(QRectF(2, 2, 12, 12));
}

void drawSun(QPainter& p)
{
    p.drawEllipse(QRectF(4.5, 4.5, 7, 7));
    p.setPen(QPen(p.brush().color(), 1.5, Qt::SolidLine, Qt::RoundCap));
    for (int i = 0; i < 8; ++i) {
        p.drawLine(QPointF(8, 2.6), QPointF(8, 1.2));
        p.translate(8, 8);
        p.rotate(45);
        p.translate(-8, -8);
    }
}

void drawCamera(QPainter& p)
{
    p.drawRoundedRect(QRectF(1, 4, 9.5, 8), 1.5, 1.5);
    p.drawPolygon(QPolygonF({{11, 8}, {15, 4.5}, {15, 11.5}}));
}

void drawTriangle(QPainter& p)
{
    p.drawPolygon(QPolygonF({{8, 1.5}, {1.5, 14}, {8, 11}}));
    p.setOpacity(0.6);
    p.drawPolygon(QPolygonF({{8, 1.5}, {14.5, 14}, {8, 11}}));
}

void drawCheckers(QPainter& p)
{
    p.drawRect(QRectF(2, 2, 6, 6));
    p.drawRect(QRectF(8, 8, 6, 6));
    p.setOpacity(0.35);
    p.drawRect(QRectF(8, 2, 6, 6));
    p.drawRect(QRectF(2, 8, 6, 6));
}

void drawDots(QPainter& p)
{
    for (const QPointF& dot :
         {QPointF(4, 4), QPointF(11, 3.5), QPointF(7.5, 8), QPointF(3.5, 12), QPointF(12, 12)})
        p.drawEllipse(dot, 1.7, 1.7);
}

void drawKnob(QPainter& p)
{
    p.setOpacity(0.6);
    p.drawRoundedRect(QRectF(1.5, 7, 13, 2.2), 1, 1);
    p.setOpacity(1);
    p.drawEllipse(QPointF(10, 8), 3.2, 3.2);
}

// The first that fits counts, so derived types stand before their bases.
constexpr Kind Kinds[] = {
    {"Separator", 0xff4a90d9, drawSealedStack},
    {"Group", 0xff4a90d9, drawStack},
    {"Transformation", 0xffd9822b, drawArrows},
    {"Material", 0xffc2528b, drawBall},
    {"Light", 0xffd9a514, drawSun},
    {"Camera", 0xff8a6fd1, drawCamera},
    {"Texture2", 0xffc2528b, drawCheckers},
    {"TextureCoordinates", 0xff7d8a97, drawDots},
    {"Points", 0xff7d8a97, drawDots},
    {"Normals", 0xff7d8a97, drawDots},
    {"Shape", 0xff3fa66b, drawTriangle},
    {"Node", 0xff7d8a97, drawKnob},
};

QIcon drawIcon(SoType type)
{
    for (const Kind& kind : Kinds) {
        if (!type.isDerivedFrom(SoType::fromName(kind.type)))
            continue;
        return drawnIcon(16, [&](QPainter& p) {
            p.setBrush(QColor(kind.color));
            kind.draw(p);
        });
    }
    return {};
}

} // namespace

QIcon nodeIcon(SoType type)
{
    static QHash<QString, QIcon> icons;
    const QString name = toQString(type.getName());
    const auto known = icons.constFind(name);
    return known != icons.constEnd() ? *known : *icons.insert(name, drawIcon(type));
}

} // namespace scopix
