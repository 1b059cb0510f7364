// SPDX-License-Identifier: MIT
#include "model/PictureReading.h"

#include <QImageIOHandler>
#include <QImageReader>

namespace scopix
{

namespace
{

constexpr int BytesPerPixel = 4; // while it is decoded, whatever it has
constexpr qint64 MostDecodedWhole = qint64{512} << 20;

SoImageSize sizeOf(const QSize& size)
{
    return {size.width(), size.height()};
}

QSize toQSize(const SoImageSize& size)
{
    return {size.width, size.height};
}

// Interlaced ones, and those with a palette or greys, are not made smaller on the way.
bool isPngDecodedWhole(QImageReader& reader)
{
    constexpr int ColorType = 25; // places in the file's first part, which all have
    constexpr int Interlace = 28;
    const QByteArray begin = reader.device() ? reader.device()->peek(Interlace + 1) : QByteArray();
    return reader.format() == "png" && (begin.size() <= Interlace || begin[Interlace] != 0 ||
                                        (begin[ColorType] & 2) == 0 || (begin[ColorType] & 1) != 0);
}

bool isDecodedSmaller(QImageReader& reader)
{
    return reader.supportsOption(QImageIOHandler::ScaledSize) && !isPngDecodedWhole(reader);
}

} // namespace

QImage fitPicture(const QImage& picture, const SoImageFit& fit)
{
    const SoImageSize wanted = picture.isNull() ? SoImageSize() : fit(sizeOf(picture.size()), BytesPerPixel);
    if (wanted.isEmpty())
        return {};
    return wanted == sizeOf(picture.size())
               ? picture
               : picture.scaled(toQSize(wanted), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage readPicture(QImageReader& reader, const SoImageFit& fit)
{
    const QSize size = reader.size();
    if (!size.isValid())
        return fitPicture(reader.read(), fit); // a kind that does not say
    const SoImageSize wanted = fit(sizeOf(size), BytesPerPixel);
    if (wanted.isEmpty())
        return {};
    if (wanted != sizeOf(size)) {
        if (!isDecodedSmaller(reader) &&
            qint64{size.width()} * size.height() * BytesPerPixel > MostDecodedWhole)
            return {};
        reader.setScaledSize(toQSize(wanted));
    }
    return reader.read();
}

} // namespace scopix
