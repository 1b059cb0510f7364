// SPDX-License-Identifier: MIT
#include "settings/DataDirectory.h"

#include "settings/UserSettings.h"
#include "support/InputFile.h"
#include "support/OutputFile.h"

#include <xsg/core/SoPreferences.h>

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
constexpr qint64 LargestFile = 1 << 20; // of those that are shipped
constexpr auto Shipped = ":/scopix/home/";

// The folder that was set here, and not by the user.
SbString& fed()
{
    static SbString folder;
    return folder;
}

bool isChosenByUser()
{
    const SbString folder = SoPreferences::getString(Variable, SbString());
    return !folder.isNull() && folder != fed();
}

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
        QByteArray content;
        if (!home.mkpath(QFileInfo(target).path()) || !readFile(source, LargestFile, content).isEmpty() ||
            !replaceFile(target, content).isEmpty())
            return target;
    }
    return {};
}

} // namespace

QString DataDirectory::ensure()
{
    if (isChosenByUser())
        return {};
    const QDir home(
        UserSettings::absolute(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) +
        QStringLiteral("/scopix"));
    fed() = SbString(QFile::encodeName(home.path()).toStdString());
    SoPreferences::setValue(Variable, fed());
    const QString failed = copyMissing(home);
    if (failed.isEmpty())
        return {};
    return QCoreApplication::translate("DataDirectory",
                                       "“%1”, a file that the extensions need, cannot be written.")
        .arg(failed);
}

} // namespace scopix
