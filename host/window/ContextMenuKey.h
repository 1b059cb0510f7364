// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace scopix
{

/// Lets Shift+F10 open the context menu of what has the focus, in any of the program's windows, as the menu
/// key does: many keyboards have no such key, and on X11 Qt leaves the other one alone. GUI thread only.
void addContextMenuKey(QWidget& window);

} // namespace scopix
