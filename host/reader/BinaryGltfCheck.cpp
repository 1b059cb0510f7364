// SPDX-License-Identifier: MIT
#include "reader/FormatChecks.h"

#include "model/FileChecks.h"
#include "model/TranslatedSentence.h"

#include <QCoreApplication>
#include <QFile>
#include <QtEndian>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("BinaryGltfCheck", text);
}

} // namespace

QString checkBinaryGltf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return cannotOpen(path, translatedErrorOf(file));
    const QByteArray head = file.read(12);
    if (!head.startsWith("glTF"))
        return cannotOpen(path, tr("it is no binary glTF file, which starts with the four letters “glTF”"));
    const auto promised = head.size() == 12 ? qFromLittleEndian<quint32>(head.constData() + 8) : 12;
    if (file.size() < promised)
        return cannotOpen(
            path,
            tr("it ends after %1 of the %2 bytes that its header announces").arg(file.size()).arg(promised));
    return {};
}

} // namespace scopix
