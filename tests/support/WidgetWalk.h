// SPDX-License-Identifier: MIT
// What every widget owes everybody: that it can be read, reached and told apart.
#pragma once

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleOptionComboBox>
#include <QTextDocumentFragment>
#include <QToolButton>
#include <QToolTip>

#include <cmath>

/// What of a widget is read in one line.
inline QString shownText(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return QString(button->text()).remove('&');
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
        return combo->currentText();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->buddy() ? QString(label->text()).remove('&') : label->text();
    return {};
}

inline int roomFor(const QWidget& widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget))
        return line->width() - line->textMargins().left() - 2;
    if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        option.editable = combo->isEditable();
        return combo->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
            .width();
    }
    return widget.width();
}

/// What the user is shown who points at it.
inline QString toolTipOf(QWidget& widget)
{
    QToolTip::hideText();
    QHelpEvent ask(QEvent::ToolTip, widget.rect().center(), widget.mapToGlobal(widget.rect().center()));
    QApplication::sendEvent(&widget, &ask);
    return QToolTip::text() + widget.toolTip();
}

/// How far two colours are apart, from 1 to 21 (WCAG 2).
inline double contrastOf(const QColor& one, const QColor& other)
{
    const auto light = [](const QColor& color) {
        const auto linear = [](double part) {
            return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF());
    };
    const double a = light(one) + 0.05;
    const double b = light(other) + 0.05;
    return a > b ? a / b : b / a;
}

/// Of what is written on it.
inline double textContrast(const QWidget& widget)
{
    const auto* button = qobject_cast<const QPushButton*>(&widget);
    const bool isInput = qobject_cast<const QLineEdit*>(&widget) || widget.inherits("QAbstractItemView");
    const QPalette::ColorRole text = isInput  ? QPalette::Text
                                     : button ? QPalette::ButtonText
                                              : widget.foregroundRole();
    const QPalette::ColorRole ground = isInput  ? QPalette::Base
                                       : button ? QPalette::Button
                                                : widget.backgroundRole();
    return contrastOf(widget.palette().color(text), widget.palette().color(ground));
}
