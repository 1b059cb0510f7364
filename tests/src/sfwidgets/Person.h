// SPDX-License-Identifier: MIT
// What a user does to the inputs of an editor, through real mouse and key events.
#pragma once

#include <QList>
#include <QString>

class QLineEdit;
class QSlider;
class QWidget;

namespace person
{

/// Brings the input's window to the front and gives the input the focus.
void focus(QWidget* input);
/// Replaces the text of a line edit.
void type(QLineEdit* edit, const QString& text);
void typeAndEnter(QLineEdit* edit, const QString& text);
/// One key that gives `text`, in place of what is selected: letters of any script.
void typeKey(QLineEdit* edit, const QString& text);
/// Goes to the next input.
void tab(QWidget* input);
/// Clicks into another line, which stands in the same window for as long as that takes.
void clickElsewhere(QWidget* input);

/// Takes the handle, moves it over the given positions and lets it go.
void drag(QSlider* slider, const QList<int>& positions);
void pressHandle(QSlider* slider);
void moveHandle(QSlider* slider, int position);
void releaseHandle(QSlider* slider);

} // namespace person
