// SPDX-License-Identifier: MIT
// What the host's shell offers beyond docks and tool bars.
#include "shell/HostShell.h"

#include <scopix/SpxExtension.h>

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>

#include <algorithm>

namespace scopix
{

void HostShell::setMenus(QMenu* edit, QMenu* view)
{
    m_editMenu = edit;
    m_viewMenu = view;
}

// The window too: a shortcut acts where its action is, and a menu may be missing.
void HostShell::addMenuAction(Menu menu, QAction* action)
{
    QMenu* target = menu == Menu::Edit ? m_editMenu : m_viewMenu;
    if (target && action)
        target->addAction(action);
    if (action)
        m_window.addAction(action);
}

void HostShell::removeMenuAction(QAction* action)
{
    for (QMenu* menu : {m_editMenu.data(), m_viewMenu.data()}) {
        if (menu)
            menu->removeAction(action);
    }
    m_window.removeAction(action);
}

bool HostShell::raiseDocksOf(const char* extension)
{
    bool isRaised = false;
    for (const Owned& each : qAsConst(m_owned)) {
        auto* dock = qobject_cast<QDockWidget*>(each.widget);
        if (!dock || dock->isHidden() || !m_extensions.contains(each.owner) ||
            each.owner->getName() != SbString(extension))
            continue;
        dock->raise();
        isRaised = true;
    }
    return isRaised;
}

bool HostShell::sharesPlaceWithFocus(QDockWidget* dock) const
{
    const QWidget* focus = QApplication::focusWidget();
    const auto others = dock && focus ? m_window.tabifiedDockWidgets(dock) : QList<QDockWidget*>();
    return std::any_of(others.begin(), others.end(),
                       [focus](const QDockWidget* other) { return other->isAncestorOf(focus); });
}

} // namespace scopix
