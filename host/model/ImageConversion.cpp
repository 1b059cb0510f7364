// SPDX-License-Identifier: MIT
#include "model/ImageConversion.h"

#include <utility>

namespace scopix
{

ModelData::Picture toPicture(QImage image)
{
    const bool grey = image.isGrayscale() && !image.hasAlphaChannel();
    const QImage::Format format = grey                      ? QImage::Format_Grayscale8
                                  : image.hasAlphaChannel() ? QImage::Format_RGBA8888
                                                            : QImage::Format_RGB888;
    const QImage pixels = std::move(image).convertToFormat(format);
    ModelData::Picture picture;
    picture.width = pixels.width();
    picture.height = pixels.height();
    picture.components = grey ? 1 : pixels.depth() / 8;
    picture.bytes.reserve(static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height) *
                          static_cast<std::size_t>(picture.components));
    for (int y = picture.height - 1; y >= 0; --y) {
        const uchar* row = pixels.constScanLine(y);
        picture.bytes.insert(picture.bytes.end(), row, row + picture.width * picture.components);
    }
    return picture;
}

} // namespace scopix
