// SPDX-License-Identifier: MIT
#include "profiles/ProfilesMenu.h"

#include "profiles/ProfileList.h"
#include "profiles/ProfilesDialog.h"

#include <QActionGroup>
#include <QMenu>

namespace scopix
{

namespace
{

constexpr int LastDigit = 9;

} // namespace

ProfilesMenu::ProfilesMenu(ProfileList& profiles, QMenu& menu)
    : QObject(&menu)
    , m_profiles(profiles)
    , m_menu(menu)
{
    connect(&profiles, &ProfileList::changed, this, &ProfilesMenu::refill);
    connect(&profiles, &ProfileList::activeChanged, this, &ProfilesMenu::refill);
    refill();
}

void ProfilesMenu::refill()
{
    m_menu.clear();
    delete m_group;
    m_group = new QActionGroup(this);
    int number = 0;
    for (const auto& each : m_profiles.profiles()) {
        const QString name = each->name();
        QString label = name;
        QAction* entry = m_menu.addAction(label.replace(QLatin1Char('&'), QStringLiteral("&&")));
        if (++number <= LastDigit)
            entry->setShortcut(QStringLiteral("Ctrl+P, %1").arg(number));
        entry->setCheckable(true);
        entry->setActionGroup(m_group);
        entry->setChecked(each.get() == m_profiles.activeProfile());
        connect(entry, &QAction::triggered, this,
                [this, name] { m_profiles.setActiveProfile(m_profiles.findProfile(name)); });
    }
    m_menu.addSeparator();
    QAction* manageEntry =
        m_menu.addAction(tr("&Manage Profiles…"), this, &ProfilesMenu::manage, QStringLiteral("Ctrl+P, M"));
    manageEntry->setObjectName(QStringLiteral("manageProfiles"));
}

void ProfilesMenu::manage()
{
    if (m_dialog)
        return;
    const QWidget* parent = m_menu.parentWidget();
    m_dialog = new ProfilesDialog(m_profiles, parent ? parent->window() : nullptr);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialog->open();
}

} // namespace scopix
