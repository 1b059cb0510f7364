// SPDX-License-Identifier: MIT
#include "export/GltfWriter.h"

#include "export/GltfJson.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QUrl>

#include <limits>

namespace scopix
{

namespace
{

// Words of the file's beginning and of its two parts.
constexpr std::uint32_t Magic = 0x46546C67;
constexpr std::uint32_t Version = 2;
constexpr std::uint32_t JsonPart = 0x4E4F534A;
constexpr std::uint32_t BinaryPart = 0x004E4942;
constexpr std::size_t PartHeader = 8;
constexpr std::size_t FileHeader = 12;

QByteArray textOf(QJsonObject description, const GltfBuffer& buffer, const QString& name)
{
    if (buffer.getSize() > 0) {
        QJsonObject object{{QStringLiteral("byteLength"), static_cast<qint64>(buffer.getSize())}};
        if (!name.isEmpty())
            object.insert(QStringLiteral("uri"), QString::fromLatin1(QUrl::toPercentEncoding(name)));
        description.insert(QStringLiteral("buffers"), QJsonArray{object});
    }
    return QJsonDocument(description)
        .toJson(name.isEmpty() ? QJsonDocument::Compact : QJsonDocument::Indented);
}

QString writeOneFile(const GltfParts& parts, const QString& path)
{
    QByteArray text = textOf(parts.description, parts.buffer, {});
    text.append(QByteArray((4 - text.size() % 4) % 4, ' '));
    const std::size_t binary = parts.buffer.getSize();
    const std::size_t size = FileHeader + PartHeader + static_cast<std::size_t>(text.size()) +
                             (binary > 0 ? PartHeader + binary : 0);
    if (size > std::numeric_limits<std::uint32_t>::max())
        return QCoreApplication::translate("SceneExport", "such a file holds no more than 4 GiB");
    ExportSink out(path);
    out.raw(Magic).raw(Version).raw(static_cast<std::uint32_t>(size));
    out.raw(static_cast<std::uint32_t>(text.size())).raw(JsonPart) << text.toStdString();
    if (binary > 0) {
        out.raw(static_cast<std::uint32_t>(binary)).raw(BinaryPart);
        parts.buffer.write(out);
    }
    return out.finish();
}

QString writeTwoFiles(const GltfParts& parts, const QString& path)
{
    const QFileInfo info(path);
    const QString binary = info.completeBaseName() + QStringLiteral(".bin");
    ExportSink bytes(info.dir().filePath(binary));
    parts.buffer.write(bytes);
    const QString reason = bytes.finish();
    if (!reason.isEmpty())
        return reason;
    ExportSink out(path);
    out << textOf(parts.description, parts.buffer, binary).toStdString();
    return out.finish();
}

} // namespace

QString writeGltf(const GltfContent& content, const QString& path)
{
    const GltfParts parts = describe(content);
    const bool isOneFile = QFileInfo(path).suffix().toLower() == QLatin1String("glb");
    return isOneFile ? writeOneFile(parts, path) : writeTwoFiles(parts, path);
}

} // namespace scopix
