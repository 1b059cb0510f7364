// SPDX-License-Identifier: MIT
#include "rows/CutText.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QToolTip>

namespace inspector
{

namespace
{

constexpr int Margin = 2; // that a QLineEdit leaves at both sides

int roomIn(const QLineEdit& line)
{
    QStyleOptionFrame option;
    option.initFrom(&line);
    option.lineWidth = line.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &line);
    const QRect inside = line.style()->subElementRect(QStyle::SE_LineEditContents, &option, &line);
    return inside.width() - line.textMargins().left() - line.textMargins().right() - 2 * Margin;
}

int roomIn(const QComboBox& box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    return box.style()
        ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box)
        .width();
}

} // namespace

bool showCutText(QWidget& input, const QEvent& event)
{
    const auto* line = qobject_cast<const QLineEdit*>(&input);
    const auto* box = qobject_cast<const QComboBox*>(&input);
    if (event.type() != QEvent::ToolTip || (!line && !box))
        return false;
    const QString text = line ? line->text() : box->currentText();
    if (input.fontMetrics().horizontalAdvance(text) <= (line ? roomIn(*line) : roomIn(*box)))
        return false;
    QToolTip::showText(static_cast<const QHelpEvent&>(event).globalPos(), text, &input);
    return true;
}

} // namespace inspector
