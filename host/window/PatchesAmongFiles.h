// SPDX-License-Identifier: MIT
#pragma once

#include "window/OpenScene.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <deque>

namespace scopix
{

class PatchActs;
class SceneFiles;
class UserNotifier;

/// Patches that were named among scenes, while these are being opened. Each is for the scene that stands
/// before it, or else for the first one. GUI thread only.
class PatchesAmongFiles : public QObject
{
    Q_OBJECT

public:
    /// All must outlive it.
    PatchesAmongFiles(SceneFiles& files, PatchActs& patches, UserNotifier& notifier,
                      QObject* parent = nullptr);

    /// Keeps the patches for applyAll(), and returns the other files. None: the patches are for the scene
    /// that is open already.
    QStringList take(const QStringList& paths);
    /// The scenes are open, as far as they can be. Applies each patch, or asks about one after the other
    /// where somebody is there to answer, from the event loop. False where one is not applied, which is told.
    /// The scene in front stays there where nobody is asked.
    bool applyAll();

private:
    struct Waiting {
        QString path;
        QString scene; // the path of its file; empty: that is in front
    };

    void askNext();
    bool bringToFront(const Waiting& patch);

    SceneFiles& m_files;
    PatchActs& m_patches;
    UserNotifier& m_notifier;
    std::deque<Waiting> m_waiting;
};

} // namespace scopix
