// SPDX-License-Identifier: MIT
#include "document/PatchFile.h"

#include "support/InputFile.h"
#include "support/OutputFile.h"

#include <scopix/SpxSentence.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

namespace scopix
{

namespace
{

constexpr qint64 LargestPatch = qint64{1} << 30;

QString tr(const char* text)
{
    return QCoreApplication::translate("PatchFile", text);
}

} // namespace

QString patchEnding()
{
    return QStringLiteral("xsgpatch");
}

QString readPatch(const QString& path, xsg::SceneChanges& changes)
{
    QByteArray content;
    const QString reason = readFile(path, LargestPatch, content);
    if (!reason.isEmpty())
        return tr("%1: The patch cannot be read: %2.").arg(path, reason);
    SbSentence error;
    const std::string_view text(content.constData(), static_cast<std::size_t>(content.size()));
    xsg::PatchText::read(text, path.toStdString(), changes, error);
    return SpxSentence::translated(error);
}

QString writePatch(const QString& path, const xsg::SceneChanges& changes)
{
    QString reason = reasonAgainstWriting(path, {patchEnding()});
    if (reason.isEmpty())
        reason = replaceFile(path, QByteArray::fromStdString(xsg::PatchText::write(changes)));
    return reason.isEmpty() ? QString() : tr("The patch “%1” cannot be written: %2.").arg(path, reason);
}

} // namespace scopix
