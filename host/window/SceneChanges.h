// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QDockWidget;
class QMainWindow;
class QToolButton;
class SoNode;

namespace scopix
{

class ChangesPanel;
class HostServices;
class SceneDocument;
class SceneEdits;
class UserNotifier;

/// What the user has changed in the open scene, as the window shows it: the panel for a dock, the mark on the
/// dock's tab and the number in the status bar. Nothing of it comes up by itself. Owned by the window. GUI
/// thread only.
class SceneChanges : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it.
    SceneChanges(QMainWindow& window, HostServices& services, SceneDocument& document,
                 UserNotifier& notifier);
    ~SceneChanges() override;

    ChangesPanel& getPanel() const { return *m_panel; }
    SceneEdits& getEdits() const { return *m_edits; }
    /// That holds the panel.
    void setDock(QDockWidget* dock);
    /// Brings it up and gives it the focus.
    void show();

signals:
    /// Other nodes than before may be changed.
    void changed();

private:
    void start();
    void follow();

    QMainWindow& m_window;
    HostServices& m_services;
    SceneDocument& m_document;
    UserNotifier& m_notifier;
    SceneEdits* m_edits;
    ChangesPanel* m_panel;
    QToolButton* m_count;
    QDockWidget* m_dock = nullptr;
};

} // namespace scopix
