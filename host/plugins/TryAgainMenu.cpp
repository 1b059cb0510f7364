// SPDX-License-Identifier: MIT
#include "plugins/TryAgainMenu.h"

#include "plugins/HostPluginsManager.h"

#include <QFileInfo>

namespace scopix
{

TryAgainMenu::TryAgainMenu(HostPluginsManager& plugins, QMenu& menu)
    : QMenu(tr("Try Again"), &menu)
    , m_plugins(plugins)
    , m_menu(menu)
{
    setObjectName(QStringLiteral("tryAgain"));
    setToolTipsVisible(true);
    connect(&plugins, &HostPluginsManager::quarantineChanged, this, &TryAgainMenu::refill);
    refill();
}

void TryAgainMenu::refill()
{
    clear();
    for (const QString& path : m_plugins.quarantined()) {
        QAction* entry = addAction(QFileInfo(path).fileName());
        entry->setToolTip(path);
        // From the event loop: the entry does not outlive the change of the quarantine.
        connect(
            entry, &QAction::triggered, this, [this, path] { m_plugins.tryAgain(path); },
            Qt::QueuedConnection);
    }
    if (isEmpty())
        m_menu.removeAction(menuAction());
    else
        m_menu.addAction(menuAction());
}

} // namespace scopix
