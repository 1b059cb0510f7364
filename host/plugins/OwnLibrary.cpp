// SPDX-License-Identifier: MIT
#include "plugins/OwnLibrary.h"

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

QString OwnLibrary::folder()
{
    return QFileInfo(QFileInfo(QFile::decodeName(findSelf().dli_fname)).canonicalFilePath()).path();
}

const OwnLibrary::Header& OwnLibrary::header()
{
    return *static_cast<const Header*>(findSelf().dli_fbase);
}

} // namespace scopix
