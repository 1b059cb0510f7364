// SPDX-License-Identifier: MIT
#include "export/GltfBuffer.h"

#include "support/LongWork.h"

#include <QJsonObject>

namespace scopix
{

namespace
{

constexpr std::size_t Alignment = 4;

std::size_t paddingOf(std::size_t size)
{
    return (Alignment - size % Alignment) % Alignment;
}

} // namespace

int GltfBuffer::add(Component component, const char* type, std::size_t count, std::size_t elementBytes,
                    std::function<void(ExportSink&)> write, QJsonObject more)
{
    more.insert(QStringLiteral("bufferView"), addView(count * elementBytes, std::move(write)));
    more.insert(QStringLiteral("componentType"), static_cast<int>(component));
    more.insert(QStringLiteral("count"), static_cast<qint64>(count));
    more.insert(QStringLiteral("type"), QString::fromLatin1(type));
    m_accessors.append(more);
    return m_accessors.size() - 1;
}

int GltfBuffer::addBytes(QByteArray bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    return addView(size, [bytes = std::move(bytes), size](ExportSink& out) {
        out << std::string_view(bytes.constData(), size) << std::string(paddingOf(size), '\0');
    });
}

int GltfBuffer::addView(std::size_t size, std::function<void(ExportSink&)> write)
{
    LongWork::goOn();
    m_views.append(QJsonObject{{QStringLiteral("buffer"), 0},
                               {QStringLiteral("byteOffset"), static_cast<qint64>(m_size)},
                               {QStringLiteral("byteLength"), static_cast<qint64>(size)}});
    m_parts.push_back(std::move(write));
    m_size += size + paddingOf(size);
    return m_views.size() - 1;
}

void GltfBuffer::write(ExportSink& out) const
{
    for (const auto& part : m_parts)
        part(out);
}

} // namespace scopix
