// SPDX-License-Identifier: MIT
#include "window/PatchesAmongFiles.h"

#include "support/Printable.h"
#include "support/UserNotifier.h"
#include "window/PatchActs.h"
#include "window/SceneFiles.h"

#include <utility>

namespace scopix
{

PatchesAmongFiles::PatchesAmongFiles(SceneFiles& files, PatchActs& patches, UserNotifier& notifier,
                                     QObject* parent)
    : QObject(parent)
    , m_files(files)
    , m_patches(patches)
    , m_notifier(notifier)
{
}

QStringList PatchesAmongFiles::take(const QStringList& paths)
{
    QStringList scenes;
    m_waiting.clear();
    for (const QString& path : paths) {
        if (PatchActs::isPatch(path))
            m_waiting.push_back({path, scenes.isEmpty() ? QString() : scenes.last()});
        else
            scenes += path;
    }
    for (Waiting& each : m_waiting) {
        if (each.scene.isEmpty())
            each.scene = scenes.value(0);
    }
    return scenes;
}

bool PatchesAmongFiles::applyAll()
{
    if (m_waiting.empty())
        return true;
    if (m_notifier.isAttended()) {
        QMetaObject::invokeMethod(this, &PatchesAmongFiles::askNext, Qt::QueuedConnection);
        return true;
    }
    const QPointer<OpenScene> front(&m_files.getScenes().getFront());
    bool isGood = true;
    for (const Waiting& each : std::exchange(m_waiting, {}))
        isGood = bringToFront(each) && m_patches.apply(each.path) && isGood;
    if (front)
        m_files.getScenes().bringToFront(*front);
    return isGood;
}

// A question stands over the scene that it is about.
void PatchesAmongFiles::askNext()
{
    while (!m_waiting.empty()) {
        const Waiting next = m_waiting.front();
        m_waiting.pop_front();
        if (bringToFront(next) && m_patches.offer(next.path, [this] { askNext(); }))
            return;
    }
}

bool PatchesAmongFiles::bringToFront(const Waiting& patch)
{
    if (patch.scene.isEmpty())
        return true;
    if (OpenScene* scene = m_files.findOpen(patch.scene)) {
        m_files.getScenes().bringToFront(*scene);
        return true;
    }
    m_notifier.error(tr("“%1” is not applied: “%2”, which it was to change, is not open.")
                         .arg(printable(patch.path), printable(patch.scene)));
    return false;
}

} // namespace scopix
