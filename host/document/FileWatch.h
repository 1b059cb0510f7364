// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>

namespace scopix
{

/// Tells when something may have happened to a file: it was written, replaced by another of its name,
/// removed, or is there again. GUI thread only.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    FileWatch();

    /// Watches this file instead of the one before; none where the path is empty.
    void watch(const QString& path);

signals:
    /// From the event loop, once for all that happened until then.
    void noticed();

private:
    void look();
    void watchAgain();

    QFileSystemWatcher m_watcher;
    QString m_path;
    bool m_isDue = false;
};

} // namespace scopix
