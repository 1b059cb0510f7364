// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QMap>
#include <QString>

#include <optional>
#include <vector>

class QFile;

namespace scopix
{

/// The text of a glTF 2.0 file and the numbers that it refers to, for what the importer does not keep. Trusts
/// nothing: what is not as it should be reads as nothing.
class GltfFile
{
public:
    static constexpr qint64 LargestText = 64 << 20;

    explicit GltfFile(const QString& path);
    /// The JSON text of an open glTF or GLB file; of one that is larger, its first part.
    static QByteArray readText(QFile& file);

    /// Empty where the file cannot be read.
    const QJsonObject& getText() const { return m_text; }

    struct Numbers {
        std::vector<float> values;
        int width = 1; // numbers in each value
    };
    /// Of an accessor; nothing for a sparse one too.
    std::optional<Numbers> read(int accessor);

private:
    QByteArray loadBinary() const;
    QByteArray bufferOf(int number);
    QByteArray loadBuffer(const QJsonObject& buffer) const;

    QString m_path;
    QJsonObject m_text;
    QMap<int, QByteArray> m_buffers;
};

} // namespace scopix
