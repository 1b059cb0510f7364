// SPDX-License-Identifier: MIT
#include "rows/TextEdit.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace inspector
{

namespace
{

constexpr int InputMargin = 2; // that a QLineEdit leaves at both sides

} // namespace

bool isCut(const QLineEdit& input)
{
    const QMargins margins = input.textMargins();
    QStyleOptionFrame frame;
    frame.initFrom(&input);
    frame.lineWidth = input.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, &input);
    const QRect inside = input.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &input);
    const int room = inside.width() - margins.left() - margins.right() - 2 * InputMargin;
    return input.fontMetrics().horizontalAdvance(input.text()) > room;
}

bool showCutText(QLineEdit& input, QEvent* event)
{
    if (event->type() != QEvent::ToolTip || !isCut(input))
        return false;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), input.text(), &input);
    return true;
}

bool TextEdit::event(QEvent* event)
{
    if (showCutText(*this, event))
        return true;
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || !isModified() || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return QLineEdit::event(event);
    if (event->type() == QEvent::KeyPress)
        m_giveBack();
    event->accept();
    return true;
}

} // namespace inspector
