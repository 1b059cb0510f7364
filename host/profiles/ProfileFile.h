// SPDX-License-Identifier: MIT
#pragma once

#include "profiles/HostProfile.h"

#include <QString>

#include <vector>

namespace scopix
{

struct ProfileSettings {
    std::vector<ProfileChoice> profiles; // "Default" among them
    QString active;
};

/// The settings file of the profiles: JSON, so that users can read and edit it.
///
///     { "active": "Edit",
///       "profiles": [
///         { "name": "Default", "editors": "all", "tools": "all" },
///         { "name": "Edit", "editors": "all", "tools": [ "SpxDefaults/Field Editor" ] } ] }
class ProfileFile
{
public:
    explicit ProfileFile(QString path)
        : m_path(std::move(path))
    {
    }
    /// In the user's configuration folder.
    static QString standardPath();
    /// What holds until somebody changes it: "Default", "Edit" and "Measure".
    static ProfileSettings shipped();

    /// The file's settings, or the shipped ones. A damaged file is kept under another name, and `error` says
    /// so.
    ProfileSettings read(QString& error) const;
    /// Empty when written, else why not, in one sentence.
    QString write(const ProfileSettings& settings) const;

    /// Why the text cannot be a profile's name beside the others; empty when it can.
    static QString nameProblem(const QString& name, const std::vector<ProfileChoice>& others);

private:
    QString setAside() const;

    QString m_path;
};

} // namespace scopix
