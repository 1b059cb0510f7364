// SPDX-License-Identifier: MIT
#pragma once

#include "settings/SettingsFile.h"

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
    explicit RecentFiles(const QString& file);

    QStringList list() const;
    /// Puts it first. As the others, returns one sentence where the list cannot be changed, else an empty
    /// text.
    QString add(const QString& path);
    QString remove(const QString& path);
    QString clear();

private:
    template <class Change>
    QString change(Change change);

    SettingsFile m_file;
};

} // namespace scopix
