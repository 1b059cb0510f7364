// SPDX-License-Identifier: MIT
#include "reader/FormatChecks.h"

#include "reader/GltfFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("GltfFault", text);
}

QString parseFault(const QByteArray& text, const QJsonParseError& error)
{
    const QByteArray before = text.left(error.offset);
    const int line = 1 + before.count('\n');
    const int column = error.offset - before.lastIndexOf('\n');
    return tr("its JSON text is broken at line %1, column %2 (%3)")
        .arg(QString::number(line), QString::number(column), error.errorString());
}

QString versionFault(const QJsonObject& gltf)
{
    const QString version =
        gltf.value(QLatin1String("asset")).toObject().value(QLatin1String("version")).toString();
    if (version.isEmpty())
        return tr("its “asset” was expected to name a version of glTF");
    if (!version.startsWith(QLatin1String("1.")) && !version.startsWith(QLatin1String("2.")))
        return tr("its version of glTF is %1, and 1.0 or 2.0 was expected").arg(version);
    return {};
}

} // namespace

QString gltfFault(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > GltfFile::LargestText)
        return {};
    const QByteArray text = GltfFile::readText(file);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    return error.error == QJsonParseError::NoError ? versionFault(document.object())
                                                   : parseFault(text, error);
}

} // namespace scopix
