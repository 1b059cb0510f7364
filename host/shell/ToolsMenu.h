// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMenu;
class SpxExtension;

namespace scopix
{

class HostShell;

/// Fills the end of a menu with an entry for each active extension that is not an editor, checked while it is
/// shown. GUI thread only.
class ToolsMenu : public QObject
{
    Q_OBJECT

public:
    /// The shell must outlive this; the menu becomes its parent.
    ToolsMenu(HostShell& shell, QMenu& menu);

private:
    void refill();
    void giveKeys();
    QAction* makeEntry(SpxExtension* extension);

    HostShell& m_shell;
    QMenu& m_menu;
    QList<QAction*> m_entries;
};

} // namespace scopix
