// SPDX-License-Identifier: MIT
#pragma once

#include "profiles/HostProfile.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace scopix
{

struct ProfileSettings {
    std::vector<ProfileChoice> profiles; // "Default" among them
    QString active;
    /// Shipped profiles that came later than the file's format, and that its user has had already.
    QStringList offered = {};
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
    /// What holds until somebody changes it: "Default", "Edit", "Measure" and "Classic".
    static ProfileSettings shipped();
    /// Adds the shipped profiles that came later and that the user has not had yet: once each, so that one
    /// that the user deletes stays deleted.
    static void offerNew(ProfileSettings& settings);

    /// The file's settings, or the shipped ones. A damaged file is kept under another name, and `error` says
    /// so.
    ProfileSettings read(QString& error) const;
    /// Empty when written, else why not, in one sentence. Whatever other sessions have written is lost.
    QString write(const ProfileSettings& settings) const;
    /// Reads the file again, lets `act` change what it holds, and writes it, while no other session can do
    /// so; `settings` is what was written. Where there is no file, or none that can be used, `act` is handed
    /// `settings` as it comes. Empty when written, else why not, in one sentence, and `settings` is as `act`
    /// would have had it.
    QString change(ProfileSettings& settings, const std::function<void(ProfileSettings&)>& act) const;

    /// Why the text cannot be a profile's name beside the others; empty when it can.
    static QString nameProblem(const QString& name, const std::vector<ProfileChoice>& others);

private:
    bool readPresent(ProfileSettings& settings, QString& error) const;
    QString cannotWrite(const QString& reason) const;
    QString setAside() const;

    QString m_path;
};

} // namespace scopix
