// SPDX-License-Identifier: MIT
#include "support/OwnLibrary.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace scopix
{

namespace
{

Dl_info findSelf()
{
    static const char s_inThisLibrary = 0;
    Dl_info info{};
    dladdr(&s_inThisLibrary, &info);
    return info;
}

} // namespace

QString OwnLibrary::path()
{
    return QFileInfo(QFile::decodeName(findSelf().dli_fname)).canonicalFilePath();
}

QString OwnLibrary::folder()
{
    return QFileInfo(path()).path();
}

QString OwnLibrary::helperProgram(const QString& name)
{
    const QDir own(folder());
    const QString beside = own.filePath(QStringLiteral("scopix/") + name);
    // A program that has the host built in lies beside the folder of the libraries.
    return QFileInfo::exists(beside) ? beside
                                     : QDir::cleanPath(own.filePath(QStringLiteral("../lib/scopix/") + name));
}

const OwnLibrary::Header& OwnLibrary::header()
{
    return *static_cast<const Header*>(findSelf().dli_fbase);
}

} // namespace scopix
