// SPDX-License-Identifier: MIT
#include "shell/ToolsMenu.h"

#include "shell/HostShell.h"

#include <scopix/SpxEditor.h>

#include <QMenu>

#include <algorithm>

namespace scopix
{

ToolsMenu::ToolsMenu(HostShell& shell, QMenu& menu)
    : QObject(&menu)
    , m_shell(shell)
    , m_menu(menu)
{
    connect(&shell, &HostShell::extensionsChanged, this, &ToolsMenu::refill);
    refill();
}

void ToolsMenu::refill()
{
    qDeleteAll(m_entries);
    m_entries.clear();
    for (SpxExtension* extension : m_shell.extensions()) {
        if (!qobject_cast<SpxEditor*>(extension))
            m_entries.append(makeEntry(extension));
    }
    giveKeys();
    m_menu.addActions(m_entries);
}

// In their order, whatever extensions there are.
void ToolsMenu::giveKeys()
{
    const int letters = 'Z' - 'A' + 1;
    for (int i = 0; i < std::min(m_entries.size(), letters); ++i)
        m_entries[i]->setShortcut(QStringLiteral("Ctrl+W, %1").arg(QChar('A' + i)));
}

QAction* ToolsMenu::makeEntry(SpxExtension* extension)
{
    auto* entry = new QAction(&m_menu);
    const auto showCaption = [this, entry, extension] {
        entry->setText(m_shell.captionOf(extension).replace(QLatin1Char('&'), QLatin1String("&&")));
    };
    showCaption();
    connect(&m_menu, &QMenu::aboutToShow, entry, showCaption); // an extension may get its title later
    entry->setStatusTip(QCoreApplication::translate("Extension", extension->getDescription().getString()));
    entry->setCheckable(true);
    entry->setChecked(extension->isShown());
    connect(extension, &SpxExtension::shownChanged, entry, &QAction::setChecked);
    connect(entry, &QAction::triggered, extension,
            [this, extension](bool checked) { m_shell.setShown(extension, checked); });
    return entry;
}

} // namespace scopix
