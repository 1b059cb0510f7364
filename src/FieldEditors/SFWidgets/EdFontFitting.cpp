// SPDX-License-Identifier: MIT
#include "EdFontFitting.h"

#include <QFontInfo>
#include <QFontMetrics>
#include <QWidget>

void setFixedHeightFitted(QWidget* widget, int height, int frame)
{
    widget->setFixedHeight(height);
    fitFont(widget, height - frame);
}

void setRoomFor(QWidget* line, const char* text)
{
    constexpr int FrameAndMargins = 10;
    line->setMinimumWidth(line->fontMetrics().horizontalAdvance(QLatin1String(text)) + FrameAndMargins);
}

void fitFont(QWidget* widget, int height)
{
    constexpr int Smallest = 8;
    QFont font = widget->font();
    for (int size = QFontInfo(font).pixelSize(); size >= Smallest && QFontMetrics(font).height() > height;
         --size)
        font.setPixelSize(size);
    widget->setFont(font);
}
