// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QActionGroup;
class QMenu;

namespace scopix
{

class HostPluginsManager;
class ProfilesDialog;

/// Fills a menu with the profiles, the active one marked, and with the way to the dialog that manages them,
/// so that a profile whose extensions offer no way out is no trap. GUI thread only.
class ProfilesMenu : public QObject
{
    Q_OBJECT

public:
    /// The manager must outlive this; the menu becomes its parent.
    ProfilesMenu(HostPluginsManager& manager, QMenu& menu);

private:
    void refill();
    void manage();

    HostPluginsManager& m_manager;
    QMenu& m_menu;
    QActionGroup* m_group = nullptr;
    QPointer<ProfilesDialog> m_dialog;
};

} // namespace scopix
