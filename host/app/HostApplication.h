// SPDX-License-Identifier: MIT
#pragma once

#include "app/CommandLine.h"
#include "app/HostWindow.h"
#include "app/SensorPump.h"
#include "plugins/HostPluginsManager.h"
#include "services/HostServices.h"
#include "shell/HostShell.h"
#include "support/UserNotifier.h"
#include "undo/UndoShortcutFilter.h"

#include <functional>
#include <memory>
#include <optional>

namespace scopix
{

/// The whole host: services, window, shell, plug-ins and profiles, set up in their order and taken down in
/// the reverse one. Needs a QApplication; a program that has one embeds the host by making one of these and
/// calling start() with an empty command line. GUI thread only.
class HostApplication : public QObject
{
    Q_OBJECT

public:
    using MakeWindow = std::function<std::unique_ptr<HostWindow>(HostServices&, UserNotifier&)>;

    explicit HostApplication(const MakeWindow& makeWindow,
                             ProfileFile profiles = ProfileFile(ProfileFile::standardPath()));
    /// Unloads the plug-ins while the window still exists.
    ~HostApplication() override;

    HostServices& services() { return m_services; }
    UserNotifier& notifier() { return m_notifier; }
    HostWindow& window() { return *m_window; }
    HostShell& shell() { return m_shell; }
    HostPluginsManager& plugins() { return m_plugins; }

    /// Loads the plug-ins that lie in the standard folders.
    void loadStandardPlugins();
    /// Does what the command line asks for; finished() follows when it is done.
    void start(const CommandLine& line);
    /// start(), and the event loop until the window is closed or everything is done. Returns the exit status:
    /// 1 when something of the command line could not be done.
    int run(const CommandLine& line);

signals:
    void finished();

private:
    void openFinished();
    void finish(const CommandLine& line);
    void restoreLayout();
    void saveLayout() const;

    SensorPump m_pump;
    UserNotifier m_notifier;
    HostServices m_services;
    std::unique_ptr<HostWindow> m_window;
    HostShell m_shell;
    HostPluginsManager m_plugins;
    UndoShortcutFilter m_undoShortcuts;
    std::optional<CommandLine> m_asked; // until its file has been opened
    bool m_keepsLayout = false;         // a user works with the window
    int m_status = 0;
};

} // namespace scopix
