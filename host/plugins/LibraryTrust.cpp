// SPDX-License-Identifier: MIT
#include "plugins/LibraryTrust.h"

#include "support/OwnLibrary.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>

namespace scopix
{

namespace
{

constexpr auto NoGroup = static_cast<gid_t>(-1);

QString tr(const char* text)
{
    return QCoreApplication::translate("LibraryTrust", text);
}

QString userName(uid_t user)
{
    const passwd* entry = getpwuid(user);
    return entry ? QString::fromLocal8Bit(entry->pw_name) : tr("user %1").arg(user);
}

// The group that some systems make for each user, so that its members may be given access one by one.
bool isPrivateGroup(gid_t group, uid_t user)
{
    const passwd* person = getpwuid(user);
    if (!person || person->pw_gid != group)
        return false;
    const QByteArray name(person->pw_name);
    const ::group* entry = getgrgid(group);
    if (!entry || name != entry->gr_name)
        return false;
    for (char** member = entry->gr_mem; *member; ++member) {
        if (name != *member)
            return false;
    }
    return true;
}

} // namespace

struct LibraryTrust::Place {
    explicit Place(const QString& itsPath)
        : path(itsPath)
        , exists(stat(QFile::encodeName(itsPath).constData(), &about) == 0)
    {
    }
    bool mayWrite(mode_t who) const { return (about.st_mode & who) != 0; }
    bool isFolder() const { return S_ISDIR(about.st_mode); }

    QString path;
    struct stat about {
    };
    bool exists;
};

LibraryTrust::LibraryTrust()
    : LibraryTrust(geteuid(), OwnLibrary::path())
{
}

LibraryTrust::LibraryTrust(uid_t user, const QString& program)
    : m_user(user)
    , m_program(QFileInfo(program).canonicalFilePath())
{
    const Place place(m_program);
    m_owner = place.exists ? place.about.st_uid : user;
    m_writers = place.exists && place.mayWrite(S_IWGRP) ? place.about.st_gid : NoGroup;
}

QString LibraryTrust::whyNot(const QString& path) const
{
    const QFileInfo file(QFileInfo(path).canonicalFilePath());
    const Place library(file.filePath());
    const Place folder(file.path());
    for (const Place* place : {&library, &folder}) {
        QString why = whyNotOwned(*place);
        if (why.isEmpty())
            why = whyWritable(*place);
        if (!why.isEmpty())
            return why;
    }
    QString above = folder.path;
    while (above != QLatin1String("/") && !above.isEmpty()) {
        above = QFileInfo(above).path();
        const QString why = whyNotFolderAbove(Place(above));
        if (!why.isEmpty())
            return why;
    }
    return {};
}

QString LibraryTrust::whyNotOwned(const Place& place) const
{
    if (!place.exists)
        return tr("its owner cannot be found out");
    if (isTrusted(place.about.st_uid))
        return {};
    const QString owner = userName(place.about.st_uid);
    return place.isFolder()
               ? tr("its folder “%1” belongs to %2, and only plug-ins of yours and of the administrator are "
                    "loaded; copy it to a folder of yours if you trust it")
                     .arg(place.path, owner)
               : tr("it belongs to %1, and only plug-ins of yours and of the administrator are loaded; copy "
                    "it to a folder of yours if you trust it")
                     .arg(owner);
}

QString LibraryTrust::whyWritable(const Place& place) const
{
    if (place.mayWrite(S_IWOTH))
        return place.isFolder()
                   ? tr("every user may write to its folder “%1”, so that it may be anybody's; take that "
                        "permission away, or copy it to a folder of yours")
                         .arg(place.path)
                   : tr("every user may write to it, so that it may be anybody's; take that permission away, "
                        "or copy it to a folder of yours");
    if (place.mayWrite(S_IWGRP) && !isTrustedGroup(place.about.st_gid))
        return place.isFolder()
                   ? tr("other users, those of its group, may write to its folder “%1”; take that permission "
                        "away, or copy it to a folder of yours")
                         .arg(place.path)
                   : tr("other users, those of its group, may write to it; take that permission away, or "
                        "copy it to a folder of yours");
    return {};
}

// In a sticky folder, such as /tmp, nobody can replace what belongs to another user.
QString LibraryTrust::whyNotFolderAbove(const Place& folder) const
{
    if (!folder.exists || holdsProgram(folder.path))
        return {};
    const QString owned = whyNotOwned(folder);
    return owned.isEmpty() && !folder.mayWrite(S_ISVTX) ? whyWritable(folder) : owned;
}

bool LibraryTrust::isTrusted(uid_t owner) const
{
    return owner == 0 || owner == m_user || owner == m_owner;
}

bool LibraryTrust::isTrustedGroup(gid_t group) const
{
    return group == 0 || group == m_writers || isPrivateGroup(group, m_user);
}

bool LibraryTrust::holdsProgram(const QString& folder) const
{
    return folder == QLatin1String("/") || m_program.startsWith(folder + QLatin1Char('/'));
}

} // namespace scopix
