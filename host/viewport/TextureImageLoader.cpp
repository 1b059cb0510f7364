// SPDX-License-Identifier: MIT
#include "viewport/TextureImageLoader.h"

#include "model/ImageConversion.h"
#include "model/PictureReading.h"

#include <xsg/fields/SoSFImage.h>

#include <QFile>
#include <QImageReader>

namespace scopix
{

bool TextureImageLoader::read(const char* path, const SoImageFit& fit, SoSFImage& image)
{
    QImageReader reader(QFile::decodeName(path));
    const ModelData::Picture picture = toPicture(readPicture(reader, fit));
    if (picture.bytes.empty())
        return false;
    image.setValue(picture.width, picture.height, picture.components, picture.bytes.data());
    return true;
}

} // namespace scopix
