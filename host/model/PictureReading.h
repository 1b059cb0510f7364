// SPDX-License-Identifier: MIT
// Pictures from files of every kind that the toolkit reads, without taking memory for what will not be kept.
#pragma once

#include <xsg/render/SoImageReader.h>

#include <QImage>

class QImageReader;

namespace scopix
{

/// Asks `fit` how large the picture may become before anything of it is decoded, and decodes it to that size
/// where its kind can be; else whole, up to half a gigabyte, and then makes it smaller. Null where it cannot
/// be read, or there is no room for it. Any thread.
QImage readPicture(QImageReader& reader, const SoImageFit& fit);

/// The same for a picture that is in memory already.
QImage fitPicture(const QImage& picture, const SoImageFit& fit);

} // namespace scopix
