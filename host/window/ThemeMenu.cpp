// SPDX-License-Identifier: MIT
#include "window/ThemeMenu.h"

#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "support/UserNotifier.h"

#include <QActionGroup>
#include <QMenu>

#include <tuple>

namespace scopix
{

namespace
{

const QString& paletteKey()
{
    static const QString key = QStringLiteral("palette");
    return key;
}

} // namespace

ThemeMenu::ThemeMenu(QMenu& menu, QWidget& window, UserNotifier& notifier)
    : QObject(&menu)
    , m_window(window)
    , m_notifier(notifier)
{
    const Theme chosen = wanted();
    auto* group = new QActionGroup(&menu);
    const std::tuple<Theme, QString, QString> entries[] = {
        {Theme::System, tr("As the &System"), QStringLiteral("Ctrl+J, S")},
        {Theme::Dark, tr("&Dark"), QStringLiteral("Ctrl+J, N")},
        {Theme::Light, tr("&Light"), QStringLiteral("Ctrl+J, L")}};
    for (const auto& [theme, text, key] : entries) {
        QAction* action = menu.addAction(text, this, [this, theme = theme] { choose(theme); });
        action->setShortcut(key);
        action->setData(themeName(theme));
        action->setCheckable(true);
        action->setChecked(theme == chosen);
        group->addAction(action);
    }
}

Theme ThemeMenu::wanted()
{
    const QString fromEnvironment = qEnvironmentVariable("SCOPIX_PALETTE");
    return themeFromName(fromEnvironment.isEmpty()
                             ? SettingsFile(UserSettings::windowFile()).value(paletteKey()).toString()
                             : fromEnvironment);
}

void ThemeMenu::choose(Theme theme)
{
    applyTheme(m_window, theme);
    const QString problem = SettingsFile(UserSettings::windowFile()).setValue(paletteKey(), themeName(theme));
    if (!problem.isEmpty())
        m_notifier.error(problem);
}

} // namespace scopix
