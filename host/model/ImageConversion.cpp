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

QImage toImage(const SoSFImage& image)
{
    int width = 0;
    int height = 0;
    int components = 0;
    const unsigned char* bytes = image.getValue(width, height, components);
    if (!bytes || width == 0 || height == 0)
        return {};
    QImage result(width, height, QImage::Format_RGBA8888);
    const bool isGrey = components < 3;
    const bool hasAlpha = components % 2 == 0;
    for (int y = height - 1; y >= 0; --y) {
        uchar* to = result.scanLine(y);
        for (int x = 0; x < width; ++x, bytes += components, to += 4) {
            to[0] = bytes[0];
            to[1] = bytes[isGrey ? 0 : 1];
            to[2] = bytes[isGrey ? 0 : 2];
            to[3] = hasAlpha ? bytes[components - 1] : 255;
        }
    }
    return result.convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
}

} // namespace scopix
