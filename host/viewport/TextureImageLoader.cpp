// SPDX-License-Identifier: MIT
#include "viewport/TextureImageLoader.h"

#include "model/ImageConversion.h"

#include <xsg/fields/SoSFImage.h>

#include <QFile>
#include <QImageReader>

namespace scopix
{

namespace
{

// A file of a few bytes can announce a picture that no memory holds.
constexpr qint64 MostPixels = qint64{1} << 28;

} // namespace

bool TextureImageLoader::read(const char* path, SoSFImage& image)
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

} // namespace scopix
