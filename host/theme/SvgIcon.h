// SPDX-License-Identifier: MIT
// The icons of the host's windows: SVG files on a grid of 16 by 16, from the resources.
#pragma once

#include <QIcon>
#include <QPalette>

class QString;
class QWidget;

namespace scopix
{

/// The icon of this name, a file in theme/icons without its ending; null where there is none. It is rendered
/// at the pixel density of the screen, in colours that suit the palette that `surface` has at that moment: on
/// a dark ground, in a selected row, disabled. Null, or a widget that was destroyed: the application's
/// palette.
QIcon svgIcon(const QString& name, const QWidget* surface);
/// A patch of this colour, which stays the same on every ground.
QIcon swatchIcon(const QColor& color, const QWidget* surface);

/// The palette that the icons on this surface follow.
QPalette paletteOf(const QWidget* surface);

} // namespace scopix
