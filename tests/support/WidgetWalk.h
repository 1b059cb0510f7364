// SPDX-License-Identifier: MIT
// What every widget owes everybody: that it can be read, reached and told apart.
#pragma once

#include <QAbstractItemView>
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
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextEdit>
#include <QToolButton>
#include <QToolTip>

#include <algorithm>
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

/// Of the words in it that have a colour of their own, such as links; that of the hardest to read.
inline double documentContrast(const QTextEdit& text)
{
    const QColor ground = text.palette().color(QPalette::Base);
    double least = contrastOf(text.palette().color(QPalette::Text), ground);
    for (QTextBlock block = text.document()->begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.hasProperty(QTextFormat::ForegroundBrush))
                least = std::min(least, contrastOf(format.foreground().color(), ground));
        }
    }
    return least;
}

/// Of its items in sight, selected and not.
inline double itemContrast(const QAbstractItemView& view)
{
    const QPalette palette = view.palette();
    double least =
        std::min(contrastOf(palette.color(QPalette::Text), palette.color(QPalette::Base)),
                 contrastOf(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)));
    for (int y = 0; y < view.viewport()->height(); y += view.fontMetrics().height() / 2) {
        const QModelIndex row = view.indexAt(QPoint(1, y));
        for (int column = 0; row.isValid() && column < row.model()->columnCount(row.parent()); ++column) {
            const QVariant color = row.siblingAtColumn(column).data(Qt::ForegroundRole);
            if (color.isValid())
                least = std::min(
                    least, contrastOf(qvariant_cast<QBrush>(color).color(), palette.color(QPalette::Base)));
        }
    }
    return least;
}

/// Of what is written on it, or in it when it is empty.
inline double textContrast(const QWidget& widget)
{
    if (const auto* text = qobject_cast<const QTextEdit*>(&widget))
        return documentContrast(*text);
    if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget))
        return itemContrast(*view);
    const auto* button = qobject_cast<const QPushButton*>(&widget);
    const auto* line = qobject_cast<const QLineEdit*>(&widget);
    const QPalette::ColorRole text = line
                                         ? line->text().isEmpty() ? QPalette::PlaceholderText : QPalette::Text
                                     : button ? QPalette::ButtonText
                                              : widget.foregroundRole();
    const QPalette::ColorRole ground = line     ? QPalette::Base
                                       : button ? QPalette::Button
                                                : widget.backgroundRole();
    return contrastOf(widget.palette().color(text), widget.palette().color(ground));
}

/// Whether it has any.
inline bool showsText(const QWidget& widget)
{
    const auto* line = qobject_cast<const QLineEdit*>(&widget);
    return !shownText(widget).isEmpty() || (line && !line->placeholderText().isEmpty()) ||
           qobject_cast<const QTextEdit*>(&widget) || qobject_cast<const QAbstractItemView*>(&widget);
}
