// SPDX-License-Identifier: MIT
// Inputs of a fixed height: their text is made small enough to be read whole.
#pragma once

class QWidget;

/// `frame`: pixels that the input's own frame takes, above and below together.
void setFixedHeightFitted(QWidget* widget, int height, int frame);
void fitFont(QWidget* widget, int height);
/// Makes a line at least so wide that `text` is read whole, in the font that it has.
void setRoomFor(QWidget* line, const char* text);
