// SPDX-License-Identifier: MIT
#pragma once

#include "app/SecondConsole.h"
#include "app/SensorPump.h"
#include "app/WindowNavigator.h"
#include "document/CounterBackup.h"
#include "plugins/HostPluginsManager.h"
#include "services/HostServices.h"
#include "services/ProgramOutput.h"
#include "shell/HostShell.h"
#include "support/UnhandledErrors.h"
#include "support/UserNotifier.h"
#include "undo/UndoShortcutFilter.h"
#include "window/HostWindow.h"

#include <scopix-host/CommandLine.h>

#include <functional>
#include <memory>
#include <optional>

namespace scopix
{

/// What HostApplication consists of, around any window: services, shell, plug-ins and profiles, set up in
/// their order and taken down in the reverse one. Needs a QApplication, of which it changes nothing. GUI
/// thread only.
class HostSession : public QObject
{
    Q_OBJECT

public:
    using MakeWindow = std::function<std::unique_ptr<HostWindow>(HostServices&, UserNotifier&)>;

    explicit HostSession(const MakeWindow& makeWindow,
                         ProfileFile profiles = ProfileFile(ProfileFile::standardPath()));
    /// Unloads the plug-ins while the window still stands.
    ~HostSession() override;

    HostServices& services() { return m_services; }
    UserNotifier& notifier() { return m_notifier; }
    HostWindow& window() { return *m_window; }
    HostShell& shell() { return m_shell; }
    HostPluginsManager& plugins() { return m_plugins; }

    /// Loads the plug-ins that lie in the standard folders, but for those that are named here.
    void loadStandardPlugins(const QStringList& butThose = {});
    /// Does what the command line asks for.
    void start(const CommandLine& line);
    /// start(), and the event loop until finished() or the application quits. Returns the exit status: 1 when
    /// something of the command line could not be done.
    int run(const CommandLine& line);

signals:
    /// The window was closed, or everything that the command line asks for is done and nobody is there to go
    /// on.
    void finished();

private:
    void connectParts();
    void addFoldAction();
    std::vector<PluginState> pluginStates() const;
    void loadPlugins(const CommandLine& line);
    void keepCounters();
    void offerCounterCopy();
    void openFinished(bool opened);
    void finish(const CommandLine& line, bool opened);
    void chooseFirstLook(bool isUnattended);
    void restoreLayout();
    void saveLayout();

    SensorPump m_pump;
    UserNotifier m_notifier;
    UnhandledErrors m_unhandledErrors; // before anybody else takes over the handlers
    ProgramOutput m_output;            // the first that hears, and the last
    HostServices m_services;
    std::unique_ptr<HostWindow> m_window;
    WindowNavigator m_navigator;
    HostShell m_shell;
    SecondConsole m_secondConsole;
    HostPluginsManager m_plugins;
    UndoShortcutFilter m_undoShortcuts;
    std::optional<CommandLine> m_asked; // until its file has been opened
    std::unique_ptr<CounterBackup>
        m_counterBackup;        // outlives the plug-ins, up to what they write at their end
    bool m_keepsLayout = false; // a user works with the window
    QStringList m_refusals;     // of plug-ins, one sentence each
    int m_status = 0;
};

} // namespace scopix
