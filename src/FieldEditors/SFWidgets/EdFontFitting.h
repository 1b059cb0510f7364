// SPDX-License-Identifier: MIT
// Sizes that are stated in pixels are the least: where the font needs more, as it may at any time, they grow.
#pragma once

#include <functional>

class QWidget;

/// Calls `measure` now, and again whenever the widget's font changes, as it does in a window with a font of
/// its own.
void followFont(QWidget* widget, std::function<void()> measure);

/// Makes a widget exactly `least` high, or as high as a line of its text needs. `frame`: pixels that the
/// widget's own frame takes, above and below together.
void setHeightFitted(QWidget* widget, int least, int frame);
/// Makes a line at least so wide that `text`, a literal, is read whole.
void setRoomFor(QWidget* line, const char* text);
