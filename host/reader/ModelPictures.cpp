// SPDX-License-Identifier: MIT
#include "reader/ModelPictures.h"

#include "model/ImageConversion.h"
#include "model/PictureReading.h"

#include <assimp/scene.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>

#include <limits>

namespace scopix
{

int ModelPictures::add(const std::string& name)
{
    // One that cannot be read stays empty, and is not tried again.
    const auto [place, isNew] = m_places.emplace(name, static_cast<int>(m_pictures.size()));
    if (!isNew)
        return place->second;
    constexpr int AnySide = std::numeric_limits<int>::max();
    SoImageSize whole;
    bool isWhole = true;
    const auto fit = [&](const SoImageSize& size, int bytesPerPixel) {
        whole = size;
        const SoImageSize fitted = m_budget.fit(size, bytesPerPixel, AnySide);
        isWhole = fitted == size;
        return fitted;
    };
    const aiTexture* embedded = m_scene.GetEmbeddedTexture(name.c_str());
    m_pictures.push_back(
        toPicture(embedded ? decode(*embedded, fit) : readBeside(QString::fromStdString(name), fit)));
    ModelData::Picture& picture = m_pictures.back();
    if (!isWhole)
        m_notes.push_back(xsg::describeFit(name, whole, {picture.width, picture.height}, m_budget, AnySide));
    else if (picture.bytes.empty())
        m_unread += QString::fromStdString(name);
    m_budget.take(static_cast<std::int64_t>(picture.bytes.size()));
    // What stands within the file is referred to by a number.
    picture.name = embedded ? embedded->mFilename.C_Str() : name;
    return place->second;
}

QImage ModelPictures::decode(const aiTexture& texture, const SoImageFit& fit) const
{
    const auto* bytes = reinterpret_cast<const char*>(texture.pcData);
    const auto width = static_cast<int>(texture.mWidth);
    if (texture.mHeight == 0) { // a whole picture file
        QByteArray content = QByteArray::fromRawData(bytes, width);
        QBuffer file(&content);
        QImageReader reader(&file);
        return readPicture(reader, fit);
    }
    const QImage pixels(reinterpret_cast<const uchar*>(bytes), width, static_cast<int>(texture.mHeight),
                        QImage::Format_ARGB32);
    return fitPicture(pixels, fit).copy();
}

QImage ModelPictures::readBeside(const QString& name, const SoImageFit& fit) const
{
    // Exporters write other systems' separators, absolute paths of other machines, or URLs.
    QString plain = QUrl::fromPercentEncoding(name.toUtf8());
    plain.replace(QLatin1Char('\\'), QLatin1Char('/'));
    for (const QString& candidate : {name, plain, QFileInfo(plain).fileName()}) {
        const QString path = QDir(m_folder).filePath(candidate);
        if (!candidate.isEmpty() && QFileInfo(path).isFile()) {
            QImageReader reader(path);
            return readPicture(reader, fit);
        }
    }
    return {};
}

} // namespace scopix
