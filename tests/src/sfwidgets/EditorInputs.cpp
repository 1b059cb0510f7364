// SPDX-License-Identifier: MIT
#include "EditorRows.h"

#include "Person.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <algorithm>

namespace
{

template <class Keep>
QList<QWidget*> inReadingOrder(QWidget* parent, Keep keep)
{
    QList<QWidget*> found;
    for (QWidget* widget : parent->findChildren<QWidget*>()) {
        if (widget->window() == parent->window() && keep(widget))
            found << widget;
    }
    const auto earlier = [parent](const QWidget* a, const QWidget* b) {
        const QPoint first = a->mapTo(parent, a->rect().center());
        const QPoint second = b->mapTo(parent, b->rect().center());
        constexpr int SameLine = 6;
        return std::abs(first.y() - second.y()) > SameLine ? first.y() < second.y() : first.x() < second.x();
    };
    std::sort(found.begin(), found.end(), earlier);
    return found;
}

bool isInnerLine(const QWidget* widget)
{
    return qobject_cast<const QSpinBox*>(widget->parentWidget());
}

bool isLine(const QWidget* widget)
{
    return qobject_cast<const QSpinBox*>(widget) ||
           (qobject_cast<const QLineEdit*>(widget) && !isInnerLine(widget));
}

bool isInput(const QWidget* widget)
{
    // The box beside a slider is no value.
    const auto* box = qobject_cast<const QCheckBox*>(widget);
    return isLine(widget) || qobject_cast<const QComboBox*>(widget) ||
           (box && box->parentWidget()->objectName() != "EdSliderFrame") ||
           widget->objectName() == "m_imageBox";
}

QWidget* placeOf(const EditorRow& row, QWidget* editor)
{
    return row.isInGrid() ? editor->findChild<QGridLayout*>("m_popupFrameLayout")->parentWidget() : editor;
}

std::string textOf(const QWidget* input)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(input))
        return line->text().toStdString();
    if (const auto* spin = qobject_cast<const QSpinBox*>(input))
        return spin->text().toStdString();
    if (const auto* combo = qobject_cast<const QComboBox*>(input))
        return combo->currentText().toStdString();
    if (const auto* box = qobject_cast<const QCheckBox*>(input))
        return box->text().toStdString() + (box->isChecked() ? '+' : '-');
    const QPixmap picture = qobject_cast<const QLabel*>(input)->pixmap(Qt::ReturnByValue);
    return picture.isNull() ? "empty" : picture.toImage().pixelColor(0, 0).name().toStdString();
}

} // namespace

QList<QWidget*> inputsOf(const EditorRow& row, QWidget* editor)
{
    return inReadingOrder(placeOf(row, editor), isInput);
}

QList<QWidget*> linesOf(const EditorRow& row, QWidget* editor)
{
    return inReadingOrder(placeOf(row, editor), isLine);
}

QList<QWidget*> stopsOf(const EditorRow& row, QWidget* editor)
{
    return inReadingOrder(placeOf(row, editor), [](const QWidget* widget) {
        return widget->isVisible() && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() &&
               !isInnerLine(widget);
    });
}

std::string shownIn(const EditorRow& row, QWidget* editor)
{
    std::string shown;
    for (const QWidget* input : inputsOf(row, editor))
        shown += (shown.empty() ? "" : "|") + textOf(input);
    return shown;
}

void open(const EditorRow& row, QWidget* editor)
{
    if (row.isInGrid() && !placeOf(row, editor)->isVisible())
        QTest::mouseClick(editor->findChild<QPushButton*>("m_editButton"), Qt::LeftButton);
}

void typeInto(QWidget* input, const QString& keys)
{
    person::focus(input);
    if (auto* line = qobject_cast<QLineEdit*>(input))
        line->selectAll();
    if (auto* spin = qobject_cast<QSpinBox*>(input))
        spin->selectAll();
    QTest::keyClicks(input, keys);
}
