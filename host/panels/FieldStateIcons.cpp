// SPDX-License-Identifier: MIT
#include "panels/FieldStateIcons.h"

#include "theme/DrawnIcon.h"

#include <xsg/fields/SoMFColor.h>
#include <xsg/fields/SoSFColor.h>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr int Size = 14;

enum class Mark { Default, Changed, Ignored, Following, Count };

Mark markOf(const SoField& field)
{
    if (field.isIgnored())
        return Mark::Ignored;
    if (field.isConnected())
        return Mark::Following;
    return field.isDefault() ? Mark::Default : Mark::Changed;
}

struct MarkColors {
    QColor quiet;
    QColor loud;
};

void drawMark(QPainter& p, Mark mark, const MarkColors& colors)
{
    const auto& [quiet, loud] = colors;
    switch (mark) {
    case Mark::Changed:
        p.setBrush(loud);
        p.drawEllipse(QPointF(7, 7), 3.4, 3.4);
        break;
    case Mark::Following:
        p.setPen(QPen(loud, 1.6, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(2, 7), QPointF(11, 7));
        p.drawPolyline(QPolygonF({{8, 4}, {11.4, 7}, {8, 10}}));
        break;
    case Mark::Ignored:
        p.setPen(QPen(quiet, 1.4, Qt::SolidLine, Qt::RoundCap));
        p.drawEllipse(QPointF(7, 7), 3.4, 3.4);
        p.drawLine(QPointF(2.5, 11.5), QPointF(11.5, 2.5));
        break;
    default:
        p.setPen(QPen(quiet, 1.2));
        p.drawEllipse(QPointF(7, 7), 3.0, 3.0);
    }
}

QIcon markIcon(Mark mark)
{
    const MarkColors onBase{QColor(0x8a, 0x93, 0x9c), QColor(0x4a, 0x90, 0xd9)};
    const MarkColors onHighlight{QColor(0xd0, 0xd8, 0xe0), QColor(0xff, 0xff, 0xff)};
    QIcon icon;
    addDrawing(icon, QIcon::Normal, Size, [&](QPainter& p) { drawMark(p, mark, onBase); });
    addDrawing(icon, QIcon::Selected, Size, [&](QPainter& p) { drawMark(p, mark, onHighlight); });
    return icon;
}

// Colours beyond 0 to 1, and those that are no numbers, show the nearest that a screen has.
int toByte(float part)
{
    return std::isfinite(part) ? static_cast<int>(std::lround(255.0F * std::clamp(part, 0.0F, 1.0F))) : 0;
}

QIcon swatch(const SbVec3f& rgb)
{
    const QColor color(toByte(rgb[0]), toByte(rgb[1]), toByte(rgb[2]));
    return drawnIcon(Size, [&](QPainter& p) {
        p.setPen(QPen(QColor(0x80, 0x80, 0x80), 1));
        p.setBrush(color);
        p.drawRoundedRect(QRectF(1.5, 1.5, 11, 11), 2.5, 2.5);
    });
}

} // namespace

QVariant fieldMark(const SoField& field)
{
    static QIcon icons[static_cast<std::size_t>(Mark::Count)];
    const Mark mark = markOf(field);
    QIcon& icon = icons[static_cast<std::size_t>(mark)];
    if (icon.isNull())
        icon = markIcon(mark);
    return icon;
}

QVariant valueSwatch(const SoField& field)
{
    if (const auto* color = dynamic_cast<const SoSFColor*>(&field))
        return swatch(color->getValue());
    if (const auto* colors = dynamic_cast<const SoMFColor*>(&field))
        return colors->getNum() == 1 ? QVariant(swatch((*colors)[0])) : QVariant();
    return {};
}

} // namespace scopix
