// SPDX-License-Identifier: MIT
#include "Look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

void applyLook()
{
    QApplication::setStyle(QStringLiteral("windows"));
    QPalette palette(QColor(0xd8, 0xc8, 0xa8), QColor(0xf4, 0xec, 0xdc));
    palette.setColor(QPalette::Highlight, QColor(0x8a, 0x3b, 0x12));
    QApplication::setPalette(palette);
    QApplication::setFont(QFont(QStringLiteral("DejaVu Serif"), 11));
}
