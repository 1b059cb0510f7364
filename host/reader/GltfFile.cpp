// SPDX-License-Identifier: MIT
#include "reader/GltfFile.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QUrl>
#include <QtEndian>

#include <algorithm>
#include <cstring>

namespace scopix
{

namespace
{

constexpr qint64 LargestFile = qint64{1} << 30;
constexpr int Header = 12;
constexpr int ChunkHeader = 8;

int widthOf(const QString& type)
{
    static const QMap<QString, int> widths{
        {"SCALAR", 1}, {"VEC2", 2}, {"VEC3", 3}, {"VEC4", 4}, {"MAT4", 16}};
    return widths.value(type);
}

// What a whole number stands for, where it is a share of 1.
template <class Whole>
float share(const char* at)
{
    Whole whole{};
    std::memcpy(&whole, at, sizeof whole);
    return std::max(static_cast<float>(whole) / static_cast<float>(std::numeric_limits<Whole>::max()), -1.0F);
}

float number(const char* at)
{
    float value = 0;
    std::memcpy(&value, at, sizeof value);
    return value;
}

struct Component {
    int size = 0;
    float (*read)(const char* at) = nullptr;
};

Component componentOf(int type, bool isNormalized)
{
    switch (type) {
    case 5126:
        return {4, number};
    case 5120:
        return isNormalized ? Component{1, share<std::int8_t>} : Component();
    case 5121:
        return isNormalized ? Component{1, share<std::uint8_t>} : Component();
    case 5122:
        return isNormalized ? Component{2, share<std::int16_t>} : Component();
    case 5123:
        return isNormalized ? Component{2, share<std::uint16_t>} : Component();
    default:
        return {};
    }
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    const bool isGood =
        QFileInfo(path).isFile() && file.size() <= LargestFile && file.open(QIODevice::ReadOnly);
    return isGood ? file.readAll() : QByteArray();
}

qint64 sizeAt(const QByteArray& bytes, qint64 at)
{
    return at + 4 <= bytes.size() ? qint64{qFromLittleEndian<quint32>(bytes.constData() + at)} : 0;
}

QJsonObject item(const QJsonObject& text, const char* list, int number)
{
    return text.value(QLatin1String(list)).toArray().at(number).toObject();
}

qint64 whole(const QJsonObject& object, const char* name, qint64 otherwise = 0)
{
    return static_cast<qint64>(object.value(QLatin1String(name)).toDouble(static_cast<double>(otherwise)));
}

} // namespace

GltfFile::GltfFile(const QString& path)
    : m_path(path)
{
    QFile file(path);
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly))
        m_text = QJsonDocument::fromJson(readText(file)).object();
}

// A binary file has the text in its first part, behind two headers.
QByteArray GltfFile::readText(QFile& file)
{
    const QByteArray head = file.peek(Header + ChunkHeader);
    if (!head.startsWith("glTF"))
        return file.read(LargestText);
    file.skip(Header + ChunkHeader);
    return file.read(std::min<qint64>(sizeAt(head, Header), LargestText));
}

// The part behind the text of a binary file.
QByteArray GltfFile::loadBinary() const
{
    const QByteArray whole = contentOf(m_path);
    const qint64 start = Header + ChunkHeader + sizeAt(whole, Header);
    return start + ChunkHeader <= whole.size()
               ? whole.mid(int(start) + ChunkHeader, int(std::min(sizeAt(whole, start), LargestFile)))
               : QByteArray();
}

QByteArray GltfFile::bufferOf(int number)
{
    if (!m_buffers.contains(number)) {
        const QJsonObject buffer = item(m_text, "buffers", number);
        m_buffers.insert(number, buffer.contains(QLatin1String("uri")) ? loadBuffer(buffer) : loadBinary());
    }
    return m_buffers.value(number);
}

QByteArray GltfFile::loadBuffer(const QJsonObject& buffer) const
{
    const QString uri = buffer.value(QLatin1String("uri")).toString();
    if (!uri.startsWith(QLatin1String("data:")))
        return contentOf(QFileInfo(m_path).absolutePath() + '/' + QUrl::fromPercentEncoding(uri.toUtf8()));
    const int comma = uri.indexOf(QLatin1Char(','));
    return QByteArray::fromBase64(uri.midRef(comma + 1).toLatin1());
}

std::optional<GltfFile::Numbers> GltfFile::read(int accessor)
{
    const QJsonObject from = item(m_text, "accessors", accessor);
    const Component component =
        componentOf(int(whole(from, "componentType")), from.value(QLatin1String("normalized")).toBool());
    Numbers numbers;
    numbers.width = widthOf(from.value(QLatin1String("type")).toString());
    const qint64 count = whole(from, "count");
    const bool isPlain =
        from.contains(QLatin1String("bufferView")) && !from.contains(QLatin1String("sparse"));
    if (!component.read || numbers.width == 0 || !isPlain || count < 0 || count > LargestFile)
        return {};
    const QJsonObject view = item(m_text, "bufferViews", int(whole(from, "bufferView")));
    const QByteArray bytes = bufferOf(int(whole(view, "buffer")));
    const qint64 size = qint64{component.size} * numbers.width;
    const qint64 stride = std::max(whole(view, "byteStride", size), size);
    const qint64 start = whole(view, "byteOffset") + whole(from, "byteOffset");
    if (start < 0 || stride > LargestFile ||
        (count > 0 && start + stride * (count - 1) + size > bytes.size()))
        return {};
    numbers.values.reserve(static_cast<std::size_t>(count * numbers.width));
    for (qint64 i = 0; i < count; ++i) {
        for (int k = 0; k < numbers.width; ++k)
            numbers.values.push_back(
                component.read(bytes.constData() + start + i * stride + k * component.size));
    }
    return numbers;
}

} // namespace scopix
