// SPDX-License-Identifier: MIT
// What the host's shell offers beyond docks and tool bars.
#include "shell/HostShell.h"

#include "shell/FoldedDock.h"
#include "support/CatchExceptions.h"

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
        if (FoldedDock* fold = FoldedDock::of(*dock))
            fold->unfold();
        dock->raise();
        isRaised = true;
    }
    return isRaised;
}

void HostShell::addProvider(SpxContextMenuProvider* provider)
{
    if (provider && !m_providers.contains(provider))
        m_providers.append(provider);
}

void HostShell::removeProvider(SpxContextMenuProvider* provider)
{
    m_providers.removeOne(provider);
}

void HostShell::fillNodeMenu(QMenu& menu, const QList<SoFieldContainer*>& nodes,
                             const SpxContextMenuProvider* except)
{
    if (!nodes.isEmpty())
        fillMenu(menu, except, [&](SpxContextMenuProvider& each) { each.addNodeEntries(menu, nodes); });
}

void HostShell::fillFieldMenu(QMenu& menu, SoField& field, const SpxContextMenuProvider* except)
{
    fillMenu(menu, except, [&](SpxContextMenuProvider& each) { each.addFieldEntries(menu, field); });
}

// A separator at the end of a menu is not shown.
void HostShell::fillMenu(QMenu& menu, const SpxContextMenuProvider* except, const AddEntries& addEntries)
{
    menu.addSeparator();
    const QList<SpxContextMenuProvider*> providers = m_providers;
    for (SpxContextMenuProvider* provider : providers) {
        if (provider == except)
            continue;
        const QString failure = catchExceptions([&] { addEntries(*provider); });
        if (!failure.isEmpty())
            emit failed(tr("A plug-in failed when it was to add entries to a menu: %1").arg(failure));
    }
}

void HostShell::setGuide(Find find, ShowHelp showHelp)
{
    m_find = std::move(find);
    m_showHelp = std::move(showHelp);
}

void HostShell::find(const QString& query)
{
    if (m_find)
        m_find(query);
}

bool HostShell::showHelp(const QString& page, const QString& section)
{
    return m_showHelp && m_showHelp(page, section);
}

const SoCamera* HostShell::getViewCamera() const
{
    return m_look ? m_look().first : nullptr;
}

QSize HostShell::getViewSize() const
{
    return m_look ? m_look().second : QSize();
}

bool HostShell::sharesPlaceWithFocus(QDockWidget* dock) const
{
    const QWidget* focus = QApplication::focusWidget();
    const auto others = dock && focus ? m_window.tabifiedDockWidgets(dock) : QList<QDockWidget*>();
    return std::any_of(others.begin(), others.end(),
                       [focus](const QDockWidget* other) { return other->isAncestorOf(focus); });
}

} // namespace scopix
