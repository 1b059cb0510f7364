// SPDX-License-Identifier: MIT
#pragma once

#include "document/RecentFiles.h"
#include "window/OpenScenes.h"
#include "window/SelectionMemo.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>

namespace scopix
{

class HostServices;
class UserNotifier;
class FileImport;

/// What the user does with files: opens and saves scenes, imports models, asks before unsaved edits are
/// dropped, and recovers those of a session that crashed. Questions open over the window. GUI thread only.
class SceneFiles : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it. No question is asked while `notifier` is unattended.
    SceneFiles(QWidget& window, HostServices& services, UserNotifier& notifier);
    ~SceneFiles() override;

    OpenScenes& getScenes() { return m_scenes; }
    const OpenScenes& getScenes() const { return m_scenes; }
    /// Of the scene in front.
    SceneDocument& getDocument() const { return m_scenes.getFront().getDocument(); }
    RecentFiles& getRecent() { return m_recent; }
    Autosave& getAutosave() const { return m_scenes.getFront().getAutosave(); }

    /// Opens a scene or model, perhaps in the background, and drops what was open; opened() follows, once,
    /// possibly before this returns. What was open stays when it fails. Problems are reported.
    void open(const QString& path);
    /// The same beside what is open. What is open already comes to the front.
    void openInTab(const QString& path);
    /// Each beside what is open, one after the other; the first that can be opened ends up in front. opened()
    /// follows once, and says whether all are. Cancelling one leaves out those that are still to come.
    void openInTabs(const QStringList& paths);
    /// What was opened from this file; null where nothing was.
    OpenScene* findOpen(const QString& path) const;
    /// False when it is not written: it cannot be, which is reported, or another program has changed the file
    /// since it was opened, and the user does not want to replace it; or its ending is one to export to,
    /// which keeps less than the scene.
    bool saveTo(const QString& path);
    /// Opens the same file again and drops all edits; the same part of the scene stays selected.
    void reload();

    /// The user works with this window from now on: offers what a crashed session left, and starts keeping
    /// unsaved edits.
    void enterInteractiveMode();

    /// What the menu offers. All but save() first ask about unsaved edits.
    void newScene();
    void askForFile();
    void openAnother(const QString& path);
    void askForFileInTab();
    void openRecent(const QString& path);
    /// The same in a tab of its own.
    void openRecentInTab(const QString& path);
    /// Closes it after asking about unsaved edits; the only one makes room for a new scene.
    void closeScene(OpenScene& scene);
    /// False when it was not saved: it could not be written, or the user gave no name.
    bool save();
    bool saveAs();
    /// To a file of another program's; the scene itself is as unsaved as before.
    void exportAs();
    /// False when the window is to stay open.
    bool confirmClose();
    /// False when the user wants to keep unsaved edits.
    bool confirmDiscard();
    /// Nobody can be asked any more: the next session is to find the unsaved edits, and what is being typed,
    /// for which the widgets must be usable.
    void keepEdits(bool withTyping);

signals:
    /// The user wants the file to be opened again, and then the edits made once more.
    void reapplyRequested();
    void opened(bool good);

private:
    void read(const QString& path, OpenScene* target);
    void readInTab(const QString& path);
    void openNext();
    void finish(bool good);
    bool isStillThere(const QString& path);
    QString askForPath();
    bool askWhetherToDrop();
    bool mayReplace(const QString& path);
    bool write(const QString& path);
    void exportTo(const QString& path);
    /// Of what is open, or else of the file that was open last, also in an earlier session.
    QString startFolder() const;
    /// False where the user cancelled it.
    bool runLong(const QString& what, const std::function<void()>& work);
    bool resolveConflict();
    FileImport* importScene(const QString& path);
    FileImport* importModel(const QString& path);
    void fileRead(SoNode* root, const QString& path, const std::vector<SoTexture2*>* textures);
    void show(SoNode* root, const QString& path, const std::vector<SoTexture2*>* textures);
    void reportFailure(const QString& sentence);
    void remember(const QString& path);
    void forgetImport();
    void cancelled(const QString& path);
    void offerRecovery();
    void recover(std::unique_ptr<RecoverySlot> slot);
    void recovered(SoNode* scene, const std::vector<SoNode*>& nodes,
                   const std::shared_ptr<RecoverySlot>& slot);

    QWidget& m_window;
    HostServices& m_services;
    UserNotifier& m_notifier;
    OpenScenes m_scenes;
    RecentFiles m_recent;
    QPointer<FileImport> m_import;
    QPointer<OpenScene> m_target; // whose place is taken by what is being opened
    bool m_isForTab = false;      // it gets one of its own
    /// Several files that are opened one after the other.
    struct Row {
        QStringList waiting;
        QPointer<OpenScene> first; // that could be opened
        bool isGood = true;
    };
    std::optional<Row> m_row;
    FileStamp m_opening;      // of the file that is being opened, before it is read
    SelectionMemo m_reselect; // of what is being reloaded
    quint64 m_droppable = 0;  // the edit count up to which the user agreed to lose edits
};

} // namespace scopix
