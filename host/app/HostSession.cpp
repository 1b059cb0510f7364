// SPDX-License-Identifier: MIT
#include "app/HostSession.h"

#include "plugins/NoPluginsNotice.h"
#include "plugins/PluginSearchPath.h"
#include "plugins/TryAgainMenu.h"
#include "profiles/ProfilesMenu.h"
#include "settings/DataDirectory.h"
#include "settings/Preferences.h"
#include "settings/ScreenLayouts.h"
#include "settings/SettingsFile.h"
#include "settings/UserSettings.h"
#include "shell/ToolsMenu.h"

#include "viewport/SceneView.h"
#include "viewport/ToneMappingNames.h"
#include <xsg/core/SoPreferences.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QMenu>
#include <QMessageBox>
#include <QSettings>
#include <QStringList>

namespace scopix
{

namespace
{

constexpr auto CounterSwitch = "XSG_PERFCOUNTER_ENABLE";

QString foldedKey()
{
    return QStringLiteral("folded");
}

QString plainConsoleKey()
{
    return QStringLiteral("plainConsole");
}

} // namespace

HostSession::HostSession(const MakeWindow& makeWindow, ProfileFile profiles)
    : m_window(makeWindow(m_services, m_notifier))
    , m_navigator(*m_window)
    , m_shell(*m_window)
    , m_secondConsole(m_shell)
    , m_plugins(m_services, m_shell, std::move(profiles))
    , m_undoShortcuts(m_services.undoStack(), *m_window)
{
    Preferences::feed();
    m_services.history().setMemoryLimit(Preferences::undoMemory());
    m_services.history().input().setWindow(m_window.get());
    // Closing this window never ends the application around it; run() waits for finished().
    m_window->setAttribute(Qt::WA_QuitOnClose, false);
    m_notifier.setWindow(m_window.get());
    connectParts();
    m_services.setSceneSource(m_window.get());
    m_shell.setMenus(m_window->editMenu(), m_window->appearanceMenu());
    m_shell.setGuide(
        [this](const QString& query) { m_window->findInScene(query); },
        [this](const QString& page, const QString& section) { return m_window->showHelp(page, section); });
    m_shell.setLook([this] { return m_window->viewLook(); });
    m_shell.setDisplay(m_window->display());
    if (!m_window->emptyHint().isEmpty())
        m_shell.keepPlaceOf(Qt::RightDockWidgetArea, m_window->emptyHint());
    m_window->setPluginStates([this] { return pluginStates(); });
    addFoldAction();
    new ToolsMenu(m_shell, *m_window->viewMenu());
    new TryAgainMenu(m_plugins, *m_window->viewMenu());
    new ProfilesMenu(m_plugins.profiles(), *m_window->profilesMenu());
}

void HostSession::addFoldAction()
{
    QMenu* menu = m_window->appearanceMenu();
    if (!menu)
        return;
    QAction* fold = menu->addAction(tr("Fold the &Bottom Area"));
    fold->setObjectName(QStringLiteral("foldBottom"));
    fold->setShortcut(QStringLiteral("Ctrl+J, F"));
    fold->setCheckable(true);
    connect(menu, &QMenu::aboutToShow, fold, [this, fold] { fold->setChecked(m_shell.isBottomFolded()); });
    connect(fold, &QAction::triggered, &m_shell, &HostShell::setBottomFolded);
}

void HostSession::connectParts()
{
    connect(&m_services, &HostServices::commandFailed, &m_notifier, &UserNotifier::error);
    connect(&m_services, &HostServices::stepsLost, &m_notifier, &UserNotifier::info);
    connect(&m_shell, &HostShell::failed, &m_notifier, &UserNotifier::error);
    connect(&m_shell, &HostShell::treeColumnsChanged, m_window.get(),
            [this] { m_window->setTreeColumns(m_shell.getTreeColumns()); });
    connect(&m_shell, &HostShell::treeValuesChanged, m_window.get(), &HostWindow::updateTreeColumns);
    connect(&m_plugins, &HostPluginsManager::failed, &m_notifier, &UserNotifier::error);
    connect(&m_plugins, &HostPluginsManager::failed, this,
            [this](const QString& sentence) { m_refusals += sentence; });
    connect(m_window.get(), &HostWindow::openFinished, this, &HostSession::openFinished);
    connect(m_window.get(), &HostWindow::closed, this, &HostSession::finished);
}

std::vector<PluginState> HostSession::pluginStates() const
{
    std::vector<PluginState> states;
    for (const QString& name : m_plugins.pluginNames())
        states.push_back({name, PluginState::State::Loaded, {}});
    for (const QString& path : m_plugins.quarantined())
        states.push_back({QFileInfo(path).fileName(), PluginState::State::SetAside,
                          tr("The program ended or hung while it was loaded.")});
    for (const QString& sentence : m_refusals)
        states.push_back({tr("Another one"), PluginState::State::Refused, sentence});
    return states;
}

HostSession::~HostSession()
{
    if (m_keepsLayout)
        saveLayout();
    m_notifier.setPrintsPostedErrors(false);
    m_plugins.unloadAll();
    m_services.clearSelection();
    m_services.history().clearAll();
    m_services.setSceneSource(nullptr);
}

void HostSession::loadStandardPlugins(const QStringList& butThose)
{
    QStringList others;
    for (const QString& path : butThose)
        others += QFileInfo(path).canonicalFilePath();
    for (const QString& path : PluginSearchPath().findAll()) {
        if (!others.contains(QFileInfo(path).canonicalFilePath()))
            m_plugins.loadPlugin(path);
    }
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
    if (const auto toneMapping = toneMappingNamed(line.toneMapping))
        m_window->findChild<SceneView*>()->setToneMapping(*toneMapping);
    // Switched off, the counters can only say how they are switched on, which is worth no place in the
    // window.
    if (!SoPreferences::getBool(CounterSwitch, false))
        m_shell.keepHiddenAtFirst(QStringLiteral("PerfCounter"));
    const QString homeTrouble = DataDirectory::ensure();
    if (!homeTrouble.isEmpty())
        m_notifier.error(homeTrouble);
    if (!line.isUnattended() && SoPreferences::getBool(CounterSwitch, false))
        keepCounters();
    loadPlugins(line);
    m_notifier.setPrintsPostedErrors(line.isUnattended()); // the console is there now
    if (!line.isUnattended())
        restoreLayout();
    m_window->show();
    if (line.isLive())
        m_window->openLive({line.launch, line.attach, line.selectNode});
    else if (line.file.isEmpty())
        openFinished(true);
    else if (line.others.isEmpty())
        m_window->openFile(line.file);
    else
        m_window->openFiles(QStringList(line.file) + line.others);
}

// Before their tool reads the file.
void HostSession::keepCounters()
{
    m_counterBackup = std::make_unique<CounterBackup>(CounterBackup::standardFile());
    if (m_counterBackup->hasCopy() && !m_counterBackup->findDamage().isEmpty())
        offerCounterCopy();
    m_counterBackup->start();
}

void HostSession::offerCounterCopy()
{
    QMessageBox box(QMessageBox::Warning, QApplication::applicationDisplayName(),
                    tr("The file of the performance counters, “%1”, is damaged: %2.")
                        .arg(m_counterBackup->getFile(), m_counterBackup->findDamage()),
                    QMessageBox::NoButton, m_window.get());
    box.setObjectName(QStringLiteral("counterCopy"));
    box.setInformativeText(
        tr("A good copy of it was kept on %1. The damaged file is kept, too, when that is put back.")
            .arg(QLocale().toString(m_counterBackup->getTime(), QLocale::ShortFormat)));
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton* yes = box.addButton(tr("&Put Back"), QMessageBox::AcceptRole);
    box.addButton(tr("&Leave As It Is"), QMessageBox::RejectRole);
    box.exec();
    const QString problem = box.clickedButton() == yes ? m_counterBackup->restore() : QString();
    if (!problem.isEmpty())
        m_notifier.error(problem);
}

void HostSession::loadPlugins(const CommandLine& line)
{
    m_plugins.profiles().read();
    if (!line.profile.isEmpty() && !m_plugins.profiles().useProfile(line.profile))
        m_notifier.error(tr("There is no profile named “%1”.").arg(line.profile));
    chooseFirstLook(line.isUnattended());
    loadStandardPlugins(line.plugins);
    for (const QString& path : line.plugins)
        m_plugins.loadPlugin(path, PluginGuard::Asked::Named);
    if (m_plugins.pluginNames().isEmpty())
        new NoPluginsNotice(*m_window, PluginSearchPath().folders());
}

// The panel shows what most people come for; the consoles are folded until there is something to say.
void HostSession::chooseFirstLook(bool isUnattended)
{
    const SettingsFile settings(UserSettings::windowFile());
    ProfileList& profiles = m_plugins.profiles();
    const bool isKnown = !isUnattended && settings.value(QStringLiteral("layout")).isValid();
    const QStringList folded = settings.value(foldedKey()).toStringList();
    for (const QString& dock : isKnown ? folded : QStringList())
        m_shell.foldAtFirst(dock);
    m_secondConsole.setAskedFor(isKnown && settings.value(plainConsoleKey()).toBool());
    if (isKnown || !profiles.activeProfile()->isDefault())
        return;
    m_shell.foldAtFirst(QStringLiteral("Console"));
    m_shell.foldAtFirst(QStringLiteral("Log"));
    connect(&profiles, &ProfileList::activeChanged, this, [this] {
        if (!m_plugins.profiles().activeProfile()->isDefault())
            m_shell.forgetFirstLook();
    });
}

void HostSession::openFinished(bool opened)
{
    if (!m_asked)
        return; // a file that the user opened later
    const CommandLine line = *m_asked;
    m_asked.reset();
    // Of several files, those that cannot be opened take nothing from those that can.
    const bool isAnyOpen = opened || !m_window->windowFilePath().isEmpty();
    if (isAnyOpen && !line.selectNode.isEmpty())
        m_window->selectField(line.selectNode, line.selectField);
    // From the event loop, when profile and editors are set up.
    QMetaObject::invokeMethod(
        this, [this, line, opened] { finish(line, opened); }, Qt::QueuedConnection);
}

void HostSession::finish(const CommandLine& line, bool opened)
{
    if (opened && !line.screenshot.isEmpty()) // else it would show what was not asked for
        m_window->saveScreenshot(line.screenshot);
    if (opened && !line.picture.isEmpty()) {
        PictureOrder order;
        order.path = line.picture;
        order.size = line.pictureSize.isEmpty() ? order.size : line.pictureSize;
        order.isTransparent = line.transparent;
        order.count = line.turntable;
        m_window->savePictures(order);
    }
    m_status = m_notifier.errorCount() > 0 ? 1 : 0;
    if (line.isUnattended())
        emit finished();
    else
        m_window->enterInteractiveMode();
}

void HostSession::restoreLayout()
{
    m_keepsLayout = true;
    const ScreenLayouts::Layout layout = ScreenLayouts::find(ScreenLayouts::currentScreens());
    m_window->restoreGeometry(layout.geometry);
    m_shell.restoreLayout(layout.docks);
}

void HostSession::saveLayout()
{
    const QString problem = SettingsFile(UserSettings::windowFile()).change([this](QSettings& settings) {
        ScreenLayouts::save(settings, {m_window->saveGeometry(), m_shell.saveLayout()});
        settings.setValue(foldedKey(), m_shell.foldedDocks());
        settings.setValue(plainConsoleKey(), m_secondConsole.isAskedFor());
    });
    if (problem.isEmpty())
        return;
    m_notifier.setAttended(false); // a box would go with the window
    m_notifier.error(problem);
}

} // namespace scopix
