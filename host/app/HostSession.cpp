// SPDX-License-Identifier: MIT
#include "app/HostSession.h"

#include "plugins/NoPluginsNotice.h"
#include "plugins/PluginSearchPath.h"
#include "profiles/ProfilesMenu.h"
#include "settings/DataDirectory.h"
#include "settings/Preferences.h"
#include "settings/UserSettings.h"
#include "shell/ToolsMenu.h"

#include <xsg/core/SoPreferences.h>

#include <QApplication>
#include <QSettings>

namespace scopix
{

namespace
{

constexpr auto CounterSwitch = "XSG_PERFCOUNTER_ENABLE";

} // namespace

HostSession::HostSession(const MakeWindow& makeWindow, ProfileFile profiles)
    : m_window(makeWindow(m_services, m_notifier))
    , m_shell(*m_window)
    , m_plugins(m_services, m_shell, std::move(profiles))
    , m_undoShortcuts(m_services.undoStack(), *m_window)
{
    Preferences::feed();
    // Closing this window never ends the application around it; run() waits for finished().
    m_window->setAttribute(Qt::WA_QuitOnClose, false);
    m_notifier.setWindow(m_window.get());
    connectParts();
    m_services.setSceneSource(m_window.get());
    m_shell.setMenus(m_window->editMenu(), m_window->appearanceMenu());
    new ToolsMenu(m_shell, *m_window->viewMenu());
    new ProfilesMenu(m_plugins.profiles(), *m_window->profilesMenu());
}

void HostSession::connectParts()
{
    connect(&m_services, &HostServices::commandFailed, &m_notifier, &UserNotifier::error);
    connect(&m_shell, &HostShell::failed, &m_notifier, &UserNotifier::error);
    connect(&m_plugins, &HostPluginsManager::failed, &m_notifier, &UserNotifier::error);
    connect(m_window.get(), &HostWindow::openFinished, this, &HostSession::openFinished);
    connect(m_window.get(), &HostWindow::closed, this, &HostSession::finished);
}

HostSession::~HostSession()
{
    if (m_keepsLayout)
        saveLayout();
    m_plugins.unloadAll();
    m_services.clearSelection();
    m_services.history().clear();
    m_services.setSceneSource(nullptr);
}

void HostSession::loadStandardPlugins()
{
    for (const QString& path : PluginSearchPath().findAll())
        m_plugins.loadPlugin(path);
}

int HostSession::run(const CommandLine& line)
{
    connect(this, &HostSession::finished, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    start(line);
    QApplication::exec();
    return m_status;
}

void HostSession::start(const CommandLine& line)
{
    m_asked = line;
    m_notifier.setAttended(!line.isUnattended());
    if (line.counters)
        SoPreferences::setValue(CounterSwitch, "1");
    // Switched off, the counters can only say how they are switched on, which is worth no place in the
    // window.
    if (!SoPreferences::getBool(CounterSwitch, false))
        m_shell.keepHiddenAtFirst(QStringLiteral("PerfCounter"));
    const QString homeTrouble = DataDirectory::ensure();
    if (!homeTrouble.isEmpty())
        m_notifier.error(homeTrouble);
    loadPlugins(line);
    if (!line.isUnattended())
        restoreLayout();
    m_window->show();
    if (line.file.isEmpty())
        openFinished();
    else
        m_window->openFile(line.file);
}

void HostSession::loadPlugins(const CommandLine& line)
{
    m_plugins.profiles().read();
    if (!line.profile.isEmpty() && !m_plugins.profiles().useProfile(line.profile))
        m_notifier.error(tr("There is no profile named “%1”.").arg(line.profile));
    loadStandardPlugins();
    for (const QString& path : line.plugins)
        m_plugins.loadPlugin(path);
    if (m_plugins.pluginNames().isEmpty())
        new NoPluginsNotice(*m_window, PluginSearchPath().folders());
}

void HostSession::openFinished()
{
    if (!m_asked)
        return; // a file that the user opened later
    const CommandLine line = *m_asked;
    m_asked.reset();
    if (!line.selectNode.isEmpty())
        m_window->selectField(line.selectNode, line.selectField);
    // From the event loop, when profile and editors are set up.
    QMetaObject::invokeMethod(
        this, [this, line] { finish(line); }, Qt::QueuedConnection);
}

void HostSession::finish(const CommandLine& line)
{
    if (!line.screenshot.isEmpty())
        m_window->saveScreenshot(line.screenshot);
    m_status = m_notifier.errorCount() > 0 ? 1 : 0;
    if (line.isUnattended())
        emit finished();
    else
        m_window->enterInteractiveMode();
}

void HostSession::restoreLayout()
{
    m_keepsLayout = true;
    const QSettings settings(UserSettings::windowFile(), QSettings::IniFormat);
    m_window->restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    m_shell.restoreLayout(settings.value(QStringLiteral("layout")).toByteArray());
}

void HostSession::saveLayout() const
{
    QSettings settings(UserSettings::windowFile(), QSettings::IniFormat);
    settings.setValue(QStringLiteral("geometry"), m_window->saveGeometry());
    settings.setValue(QStringLiteral("layout"), m_shell.saveLayout());
}

} // namespace scopix
