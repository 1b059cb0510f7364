// SPDX-License-Identifier: MIT
#include "document/FileWatch.h"

#include <QFileInfo>

#include <utility>

namespace scopix
{

FileWatch::FileWatch()
{
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &FileWatch::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileWatch::look);
}

void FileWatch::watch(const QString& path)
{
    if (std::exchange(m_path, path) == path)
        return;
    const QStringList before = m_watcher.files() + m_watcher.directories();
    if (!before.isEmpty())
        m_watcher.removePaths(before);
    watchAgain();
}

// Another file of the same name is another one to the system. The folder tells when one comes.
void FileWatch::watchAgain()
{
    const QFileInfo file(m_path);
    if (m_path.isEmpty())
        return;
    for (const QString& path : {m_path, file.path()}) {
        const bool isWatched = m_watcher.files().contains(path) || m_watcher.directories().contains(path);
        if (!isWatched && QFileInfo::exists(path))
            m_watcher.addPath(path);
    }
}

void FileWatch::look()
{
    if (std::exchange(m_isDue, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isDue = false;
            watchAgain();
            emit noticed();
        },
        Qt::QueuedConnection);
}

} // namespace scopix
