// SPDX-License-Identifier: MIT
#include "rows/Mark.h"

#include <QPainter>

namespace inspector
{

Mark::Mark(QWidget* parent)
    : QToolButton(parent)
{
    setObjectName(QStringLiteral("mark"));
    setFocusPolicy(Qt::NoFocus); // the row's context menu has the same entries for the keyboard
    setAutoRaise(true);
}

void Mark::setState(State state, const QString& words)
{
    setToolTip(words);
    setAccessibleDescription(words);
    if (m_state == state)
        return;
    m_state = state;
    update();
}

void Mark::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = fontMetrics().height() / 16.0;
    const QPointF middle = QRectF(rect()).center();
    QColor color = palette().color(QPalette::WindowText);
    const QColor strong =
        m_state == State::Conflict ? QColor(0xd0, 0x70, 0x10) : palette().color(QPalette::Highlight);
    color.setAlphaF(underMouse() ? 0.8 : 0.35);
    const double radius = 3 * unit;
    painter.setPen(QPen(m_state == State::Default ? color : strong, 1.4 * unit));
    switch (m_state) {
    case State::Default:
        painter.drawEllipse(middle, radius * 0.6, radius * 0.6);
        break;
    case State::Changed:
        painter.setBrush(strong);
        painter.drawEllipse(middle, radius, radius);
        break;
    case State::Connected:
        painter.drawEllipse(middle - QPointF(radius * 0.7, 0), radius, radius * 0.75);
        painter.drawEllipse(middle + QPointF(radius * 0.7, 0), radius, radius * 0.75);
        break;
    case State::Ignored:
        painter.setPen(QPen(palette().color(QPalette::WindowText), 1.4 * unit));
        painter.drawEllipse(middle, radius, radius);
        painter.drawLine(middle + QPointF(-radius, radius), middle + QPointF(radius, -radius));
        break;
    case State::Animated:
        painter.setBrush(strong);
        painter.drawConvexPolygon(QPolygonF()
                                  << middle + QPointF(-radius * 0.8, -radius) << middle + QPointF(radius, 0)
                                  << middle + QPointF(-radius * 0.8, radius));
        break;
    case State::Conflict:
        QFont bold = font();
        bold.setBold(true);
        painter.setFont(bold);
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("!"));
        break;
    }
}

} // namespace inspector
