// SPDX-License-Identifier: MIT
#include "Person.h"

#include <support/Waiting.h>

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSlider>
#include <QStyleOptionSlider>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

QStyleOptionSlider optionOf(const QSlider* slider)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.subControls = QStyle::SC_All;
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    return option;
}

QPoint handleAt(const QSlider* slider, int position)
{
    QStyleOptionSlider option = optionOf(slider);
    option.sliderPosition = position;
    return slider->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
        .center();
}

void send(QSlider* slider, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, at, slider->mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(slider, &event);
}

} // namespace

void person::focus(QWidget* input)
{
    input->window()->show();
    input->window()->activateWindow();
    (void)waitForActive(input->window());
    input->setFocus();
}

void person::type(QLineEdit* edit, const QString& text)
{
    focus(edit);
    edit->selectAll();
    if (text.isEmpty())
        QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

void person::typeAndEnter(QLineEdit* edit, const QString& text)
{
    type(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
}

void person::typeKey(QLineEdit* edit, const QString& text)
{
    focus(edit);
    edit->selectAll();
    QTest::sendKeyEvent(QTest::Click, edit, Qt::Key_unknown, text, Qt::NoModifier);
}

void person::tab(QWidget* input)
{
    QTest::keyClick(input, Qt::Key_Tab);
}

void person::clickElsewhere(QWidget* input)
{
    QLineEdit elsewhere(input->window());
    elsewhere.show();
    QTest::mouseClick(&elsewhere, Qt::LeftButton);
    EXPECT_TRUE(elsewhere.hasFocus());
}

void person::drag(QSlider* slider, const QList<int>& positions)
{
    pressHandle(slider);
    for (int position : positions)
        moveHandle(slider, position);
    releaseHandle(slider);
}

void person::pressHandle(QSlider* slider)
{
    focus(slider);
    send(slider, QEvent::MouseButtonPress, handleAt(slider, slider->sliderPosition()), Qt::LeftButton,
         Qt::LeftButton);
}

void person::moveHandle(QSlider* slider, int position)
{
    send(slider, QEvent::MouseMove, handleAt(slider, position), Qt::NoButton, Qt::LeftButton);
}

void person::releaseHandle(QSlider* slider)
{
    send(slider, QEvent::MouseButtonRelease, handleAt(slider, slider->sliderPosition()), Qt::LeftButton,
         Qt::NoButton);
}
