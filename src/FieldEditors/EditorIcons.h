// SPDX-License-Identifier: MIT
// The small grey pictograms of the field editors' buttons, 16 by 16 pixels, held in the program.
#pragma once

#include <QPixmap>

namespace fieldEditor
{

enum class Icon { Add, Delete, Up, Down, Default, Ignore, Edit };

/// Needs a QGuiApplication.
QPixmap icon(Icon which);

} // namespace fieldEditor
