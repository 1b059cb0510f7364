// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace scopix
{

class HostPluginsManager;

/// The entries that load a plug-in although it is in quarantine. Stands in the menu given only while there is
/// such a plug-in. GUI thread only.
class TryAgainMenu : public QMenu
{
    Q_OBJECT

public:
    /// `menu` owns it; both the manager and the menu outlive it.
    TryAgainMenu(HostPluginsManager& plugins, QMenu& menu);

private:
    void refill();

    HostPluginsManager& m_plugins;
    QMenu& m_menu;
};

} // namespace scopix
