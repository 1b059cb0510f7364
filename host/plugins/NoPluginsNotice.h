// SPDX-License-Identifier: MIT
#pragma once

#include <QDockWidget>

class QMainWindow;

namespace scopix
{

/// Stands where the tools of plug-ins would be while there is no plug-in, and says where plug-ins were looked
/// for: without it, a window that cannot edit anything would not say why. GUI thread only.
class NoPluginsNotice : public QDockWidget
{
    Q_OBJECT

public:
    /// Adds itself to the window, which owns it.
    NoPluginsNotice(QMainWindow& window, const QStringList& searchedFolders);
};

} // namespace scopix
