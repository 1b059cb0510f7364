// SPDX-License-Identifier: MIT
#pragma once

#include "theme/Theme.h"

#include <QObject>

class QMenu;

namespace scopix
{

class UserNotifier;

/// The menu of the window's themes, an entry for each, whose data is its name. GUI thread only.
class ThemeMenu : public QObject
{
    Q_OBJECT

public:
    /// Fills `menu`, which owns it; the others must outlive it.
    ThemeMenu(QMenu& menu, QWidget& window, UserNotifier& notifier);

    /// What SCOPIX_PALETTE says, or else the user's choice.
    static Theme wanted();

private:
    void choose(Theme theme);

    QWidget& m_window;
    UserNotifier& m_notifier;
};

} // namespace scopix
