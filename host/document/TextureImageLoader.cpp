// SPDX-License-Identifier: MIT
#include "document/TextureImageLoader.h"

#include "document/Textures.h"
#include "model/ImageConversion.h"

#include <QFile>
#include <QImageReader>

namespace scopix
{

namespace
{

// A file of a few bytes can announce a picture that no memory holds.
constexpr qint64 MostPixels = qint64{1} << 28;

bool read(const char* path, SoSFImage& image)
{
    QImageReader reader(QFile::decodeName(path));
    const QSize size = reader.size();
    if (qint64{size.width()} * size.height() > MostPixels)
        return false;
    const ModelData::Picture picture = toPicture(reader.read());
    if (picture.bytes.empty())
        return false;
    image.setValue(picture.width, picture.height, picture.components, picture.bytes.data());
    return true;
}

} // namespace

void TextureImageLoader::useFor(SoNode* root)
{
    forEachTexture(root, [](SoTexture2& texture) { texture.useFileReader(read); });
}

} // namespace scopix
