// SPDX-License-Identifier: MIT
#pragma once

#include "export/ExportSink.h"

#include <QByteArray>
#include <QJsonArray>

#include <functional>
#include <vector>

class QJsonObject;

namespace scopix
{

/// The binary part of a glTF file: which bytes it has, as its accessors and views say, and in the end the
/// bytes themselves, of which there is no second copy but of pictures. What is added must outlive it.
class GltfBuffer
{
public:
    /// As in the file format.
    enum class Component { Float = 5126, UnsignedInt = 5125, UnsignedShort = 5123 };

    /// Adds an accessor and returns its place. `write` is called when the bytes are written, for `count`
    /// elements of `elementBytes` each; `type` is the format's, as in "VEC3"; elements are whole times four
    /// bytes. The object may be extended.
    int add(Component component, const char* type, std::size_t count, std::size_t elementBytes,
            std::function<void(ExportSink&)> write, QJsonObject more);
    /// Adds a view of bare bytes and returns its place.
    int addBytes(QByteArray bytes);

    QJsonArray getAccessors() const { return m_accessors; }
    QJsonArray getViews() const { return m_views; }
    std::size_t getSize() const { return m_size; }
    void write(ExportSink& out) const;

private:
    int addView(std::size_t size, std::function<void(ExportSink&)> write);

    QJsonArray m_accessors;
    QJsonArray m_views;
    std::vector<std::function<void(ExportSink&)>> m_parts;
    std::size_t m_size = 0;
};

} // namespace scopix
