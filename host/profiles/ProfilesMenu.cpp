// SPDX-License-Identifier: MIT
#include "profiles/ProfilesMenu.h"

#include "plugins/HostPluginsManager.h"
#include "profiles/ProfilesDialog.h"

#include <QActionGroup>
#include <QMenu>

namespace scopix
{

ProfilesMenu::ProfilesMenu(HostPluginsManager& manager, QMenu& menu)
    : QObject(&menu)
    , m_manager(manager)
    , m_menu(menu)
{
    connect(&manager, &HostPluginsManager::profilesChanged, this, &ProfilesMenu::refill);
    connect(&manager, &HostPluginsManager::activeProfileChanged, this, &ProfilesMenu::refill);
    refill();
}

void ProfilesMenu::refill()
{
    m_menu.clear();
    delete m_group;
    m_group = new QActionGroup(this);
    for (const auto& each : m_manager.profiles()) {
        const QString name = each->name();
        QString label = name;
        QAction* entry = m_menu.addAction(label.replace(QLatin1Char('&'), QStringLiteral("&&")));
        entry->setCheckable(true);
        entry->setActionGroup(m_group);
        entry->setChecked(each.get() == m_manager.activeProfile());
        connect(entry, &QAction::triggered, this,
                [this, name] { m_manager.setActiveProfile(m_manager.findProfile(name)); });
    }
    m_menu.addSeparator();
    QAction* manageEntry = m_menu.addAction(tr("&Manage Profiles…"), this, &ProfilesMenu::manage);
    manageEntry->setObjectName(QStringLiteral("manageProfiles"));
}

void ProfilesMenu::manage()
{
    if (m_dialog)
        return;
    const QWidget* parent = m_menu.parentWidget();
    m_dialog = new ProfilesDialog(m_manager, parent ? parent->window() : nullptr);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->open();
}

} // namespace scopix
