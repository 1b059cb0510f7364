// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <sys/types.h>

namespace scopix
{

/// Whether a library comes from somebody whose code may run here: from the user, from root, or from whoever
/// this program itself comes from. Looks at the owner of the file and of its folder and at who may write to
/// either; at who may write to the folders above, which could put another file in its place; and takes
/// nothing amiss that is as true of the program's own folders, since whoever may write there owns the program
/// anyway. A group may write when nobody else is in it. Needs no thread in particular.
class LibraryTrust
{
public:
    /// For the user of this process and the host library that runs in it.
    LibraryTrust();
    /// For a user and the path of a program.
    LibraryTrust(uid_t user, const QString& program);

    /// Empty where the library may be loaded; else why it may not, as the end of a sentence about "it". Links
    /// are followed; who may change them does not matter, since what they lead to is looked at.
    QString whyNot(const QString& path) const;

private:
    struct Place;
    QString whyNotOwned(const Place& place) const;
    QString whyWritable(const Place& place) const;
    QString whyNotFolderAbove(const Place& folder) const;
    bool isTrusted(uid_t owner) const;
    bool isTrustedGroup(gid_t group) const;
    bool holdsProgram(const QString& folder) const;

    uid_t m_user;
    uid_t m_owner;   // of the program
    gid_t m_writers; // the group that may write to the program, or the one that owns nothing
    QString m_program;
};

} // namespace scopix
