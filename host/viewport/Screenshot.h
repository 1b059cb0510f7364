// SPDX-License-Identifier: MIT
// Pictures of a window as it would look on a screen, on machines without one too.
#pragma once

#include <QString>

class QWidget;

namespace scopix
{

/// The ending of the path chooses the kind of picture; a path of another kind of file, such as a scene, is
/// refused. Lets the window come to rest first: layout, selection and live values. One sentence where the
/// picture cannot be written, which leaves no file behind; else empty.
QString saveScreenshot(QWidget& window, const QString& path);

} // namespace scopix
