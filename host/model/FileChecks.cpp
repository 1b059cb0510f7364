// SPDX-License-Identifier: MIT
#include "model/FileChecks.h"

#include "model/TranslatedSentence.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace scopix
{

namespace
{

constexpr int MostNamed = 9;

QString tr(const char* text)
{
    return QCoreApplication::translate("FileChecks", text);
}

QString fileExtensionsText(const QStringList& fileExtensions)
{
    QStringList dotted;
    for (const QString& ending : fileExtensions)
        dotted << QLatin1Char('.') + ending;
    if (dotted.size() > MostNamed) // those that most have heard of
        return tr("%1, or that of another kind of model")
            .arg(dotted.mid(0, MostNamed).join(QStringLiteral(", ")));
    const QString last = dotted.takeLast();
    return dotted.isEmpty() ? last : tr("%1 or %2").arg(dotted.join(QStringLiteral(", ")), last);
}

QString reasonAgainst(const QString& path, const QStringList& fileExtensions)
{
    const QFileInfo info(path);
    if (!info.exists())
        return tr("there is no such file");
    if (info.isDir())
        return tr("it is a folder, and a file was expected");
    if (!info.isFile()) // a device or a pipe may have no end, or keep who opens it waiting
        return tr("it is no file with an end, and one was expected");
    if (!fileExtensions.contains(info.suffix().toLower()))
        return tr("its name was expected to end in %1").arg(fileExtensionsText(fileExtensions));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return tr("it cannot be read (%1)").arg(translatedErrorOf(file));
    if (info.size() == 0)
        return tr("it is empty, and a scene or model was expected");
    return {};
}

} // namespace

QString cannotOpen(const QString& path, const QString& reason)
{
    return tr("“%1” cannot be opened: %2.").arg(QDir::toNativeSeparators(path), reason);
}

QString checkFile(const QString& path, const QStringList& fileExtensions)
{
    const QString reason = reasonAgainst(path, fileExtensions);
    return reason.isEmpty() ? QString() : cannotOpen(path, reason);
}

} // namespace scopix
