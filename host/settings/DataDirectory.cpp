// SPDX-License-Identifier: MIT
#include "settings/DataDirectory.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>

namespace scopix
{

namespace
{

constexpr auto Variable = "XSGHOME";
constexpr auto Shipped = ":/scopix/home/";

// The first file that could not be written, or an empty text.
QString copyMissing(const QDir& home)
{
    const QDir shipped{QLatin1String(Shipped)};
    QDirIterator files(shipped.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = home.filePath(shipped.relativeFilePath(source));
        if (QFile::exists(target))
            continue;
        if (!home.mkpath(QFileInfo(target).path()) || !QFile::copy(source, target))
            return target;
        // A copy of a resource is read-only.
        QFile::setPermissions(target,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    }
    return {};
}

} // namespace

QString DataDirectory::ensure()
{
    if (qEnvironmentVariableIsSet(Variable))
        return {};
    const QDir home(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                    QStringLiteral("/scopix"));
    qputenv(Variable, QFile::encodeName(home.path()));
    const QString failed = copyMissing(home);
    if (failed.isEmpty())
        return {};
    return QCoreApplication::translate("DataDirectory",
                                       "Cannot write \"%1\", a file that the extensions start with.")
        .arg(failed);
}

} // namespace scopix
