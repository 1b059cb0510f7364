// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/changes/SceneChange.h>

#include <QObject>

#include <functional>

class QWidget;

namespace scopix
{

class ChangesPanel;
class HostServices;
class SceneFiles;
class UserNotifier;

/// Patches of the open scene: saves changes as one, applies one as one step and lists what did not fit.
/// Questions open over the window. GUI thread only.
class PatchActs : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it.
    PatchActs(QWidget& window, HostServices& services, SceneFiles& files, ChangesPanel& panel,
              UserNotifier& notifier, QObject* parent);

    static bool isPatch(const QString& path);
    void askAndSave();
    void askAndApply();
    /// Of the ticked changes, or of all. False where it cannot be written, which is told.
    bool save(const QString& path);
    /// False where it cannot be read, or no scene is open, which is told.
    bool apply(const QString& path);
    /// Asks first, where somebody is there to answer: for a patch that was opened like a scene. `answered`
    /// follows from the event loop where it returns true and has asked.
    bool offer(const QString& path, const std::function<void()>& answered = {});
    void apply(xsg::SceneChanges changes, const QString& name);
    /// To the clipboard.
    void copy();
    void copyCpp();
    void copyScene();

private:
    bool hasNoScene() const;
    bool read(const QString& path, xsg::SceneChanges& changes);
    /// False where the user cancels it.
    bool runLong(const QString& what, const std::function<void()>& work);
    void put(const std::function<QString()>& makeText, const QString& sentence);
    void tell(const QString& name, int applied, int alreadySo, const std::vector<SbSentence>& misfits);

    QWidget& m_window;
    HostServices& m_services;
    SceneFiles& m_files;
    ChangesPanel& m_panel;
    UserNotifier& m_notifier;
};

} // namespace scopix
