// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QActionGroup;
class QMenu;

namespace scopix
{

class ProfileList;
class ProfilesDialog;

/// Fills a menu with the profiles, the active one marked, and with the way to the dialog that manages them,
/// so that a profile whose extensions offer no way out is no trap. GUI thread only.
class ProfilesMenu : public QObject
{
    Q_OBJECT

public:
    /// The list must outlive this; the menu becomes its parent.
    ProfilesMenu(ProfileList& profiles, QMenu& menu);

private:
    void refill();
    void manage();

    ProfileList& m_profiles;
    QMenu& m_menu;
    QActionGroup* m_group = nullptr;
    QPointer<ProfilesDialog> m_dialog;
};

} // namespace scopix
