// SPDX-License-Identifier: MIT
#pragma once

#include "acts/KeyBindings.h"
#include "preferences/Setting.h"
#include "start/PluginState.h"

#include <QObject>
#include <QPointer>

class QMainWindow;
class QMenu;

namespace scopix
{

class HostServices;
class PreferencesDialog;
class SceneFiles;
class SceneView;
class UserNotifier;

/// What the user may set in this window, and the dialog for it. Restores what was set before, but for the
/// keys. Owned by the window. GUI thread only.
class SettingsActs : public QObject
{
    Q_OBJECT

public:
    struct Parts {
        QMainWindow& window;
        SceneView& view;
        SceneFiles& files;
        HostServices& services;
        UserNotifier& notifier;
        QMenu& themes; // an entry for each, whose data is its name
    };

    SettingsActs(const Parts& parts, PluginStates plugins);

    QAction* getAction() const { return m_action; }
    /// By now the acts of the extensions are there too.
    void restoreKeys();
    KeyBindings& getKeys() { return *m_keys; }

    /// As they are by now, with what extensions have put into the View menu.
    std::vector<Setting> settings() const;
    /// Opens the dialog at this one; empty: at its beginning.
    void open(const QString& setting = {});

private:
    Setting theme() const;
    Setting fontSize() const;
    Setting language() const;
    Setting mouse() const;
    Setting undoMemory() const;
    Setting pictureMemory() const;
    Setting creaseAngle() const;
    Setting autosavePause() const;
    void addToggles(std::vector<Setting>& settings) const;
    static void addOfExtensions(std::vector<Setting>& settings);
    void restore();
    void setAutosavePause(int seconds) const;

    Parts m_parts;
    PluginStates m_plugins;
    QAction* m_action;
    KeyBindings* m_keys;
    QPointer<PreferencesDialog> m_dialog;
};

} // namespace scopix
