// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace scopix
{

/// The files that the user opened or saved last, newest first, kept in the configuration and shared by all
/// sessions. GUI thread only.
class RecentFiles
{
public:
    static constexpr int Most = 10;

    /// `file`: the settings file to keep them in.
    explicit RecentFiles(QString file);

    QStringList list() const;
    /// Puts it first.
    void add(const QString& path);
    void remove(const QString& path);
    void clear();

private:
    void write(const QStringList& paths) const;

    QString m_file;
};

} // namespace scopix
