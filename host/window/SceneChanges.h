// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/SceneChange.h>

#include <QObject>
#include <QPointer>

class QAction;
class QDockWidget;
class QMainWindow;
class QMenu;
class QToolButton;
class SoNode;

namespace scopix
{

class ChangesPanel;
class FileComparison;
class OtherFile;
class PatchActs;
class HostServices;
class SceneDocument;
class SceneEdits;
class SceneFiles;
class UserNotifier;

/// What the user has changed in the open scene, as the window shows it: the panel for a dock, the mark on the
/// dock's tab and the number in the status bar. Nothing of it comes up by itself. Owned by the window. GUI
/// thread only.
class SceneChanges : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it.
    SceneChanges(QMainWindow& window, HostServices& services, SceneFiles& files, UserNotifier& notifier);
    ~SceneChanges() override;

    ChangesPanel& getPanel() const { return *m_panel; }
    /// Of the scene in front.
    SceneEdits& getEdits() const;
    /// That holds the panel.
    void setDock(QDockWidget* dock);
    /// Brings it up and gives it the focus.
    void show();
    PatchActs& getPatches() const { return *m_patches; }
    /// What a menu of files offers.
    void fillMenu(QMenu& menu);
    void askAndCompare();
    /// Reads it, perhaps in the background; the dock then shows what differs from it.
    void compareWith(const QString& path);
    /// Opens the same file again, as it is by now, and makes the changes once more, as one step.
    void reloadAndReapply();
    /// Back to what differs from what was opened.
    void showEdits();
    bool isComparing() const;
    /// All changes as they are now, for a scene that is read again.
    xsg::SceneChanges takeChanges();

signals:
    /// Other nodes than before may be changed.
    void changed();

private:
    SceneDocument& document() const;
    void showFront();
    void start();
    void follow();
    void makeMenu();
    void compared(SoNode* other, const QString& path);
    bool compare(FileComparison& comparison);
    void compareAgain();
    void showSource();

    QMainWindow& m_window;
    HostServices& m_services;
    SceneFiles& m_files;
    UserNotifier& m_notifier;
    OtherFile* m_file;
    ChangesPanel* m_panel;
    PatchActs* m_patches;
    QPointer<FileComparison> m_comparison; // null: the edits show
    QAction* m_again = nullptr;
    QAction* m_back = nullptr;
    QAction* m_start = nullptr;
    QToolButton* m_count;
    QDockWidget* m_dock = nullptr;
};

} // namespace scopix
