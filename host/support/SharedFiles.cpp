// SPDX-License-Identifier: MIT
#include "support/SharedFiles.h"

#include "support/OwnLibrary.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace scopix
{

QString sharedFile(const QString& name)
{
    for (const QString& start : {OwnLibrary::folder(), QCoreApplication::applicationDirPath()}) {
        for (const char* up : {"/../share/scopix/", "/../../share/scopix/"}) {
            const QString path = QDir::cleanPath(start + QLatin1String(up) + name);
            if (QFileInfo::exists(path))
                return path;
        }
    }
    return {};
}

} // namespace scopix
