// SPDX-License-Identifier: MIT
#pragma once

#include "document/FileWatch.h"

#include <QDateTime>
#include <QObject>

namespace scopix
{

/// The last good copy of the file of the performance counters. Their tool writes that file in place, so that
/// a full disk or a crash may leave half of it: the host, which knows no more of it than how it begins, keeps
/// a copy among the user's settings whenever the whole file can be read. GUI thread only.
class CounterBackup : public QObject
{
    Q_OBJECT

public:
    /// Where the tool has its file: under the folder that the preference XSGHOME names.
    static QString standardFile();

    explicit CounterBackup(QString file);
    ~CounterBackup() override;

    /// What is wrong with the file, as the end of a sentence; empty where nothing is, and where there
    /// is none that can be read at all.
    QString findDamage() const;
    bool hasCopy() const;
    QDateTime getTime() const; // of the copy
    /// Puts the copy in the place of the file, which is kept under another name. One sentence where that
    /// cannot be done, else an empty text.
    QString restore() const;

    /// Keeps a copy now and after every change, up to its own end.
    void start();
    const QString& getFile() const { return m_file; }

private:
    void keep() const;

    QString m_file;
    QString m_copy;
    FileWatch m_watch;
    bool m_isStarted = false;
};

} // namespace scopix
