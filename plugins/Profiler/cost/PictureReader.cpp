// SPDX-License-Identifier: MIT
#include "cost/PictureReader.h"

#include <xsg/fields/SoSFImage.h>
#include <xsg/support/SpecialFile.h>

#include <QFile>
#include <QImageReader>

#include <vector>

namespace profiler
{

bool readPicture(const char* path, const SoImageFit& fit, SoSFImage& image)
{
    constexpr int Components = 4;
    if (xsg::isSpecialFile(path))
        return false;
    QImageReader reader(QFile::decodeName(path));
    const QSize size = reader.size();
    const SoImageSize fitted = fit({size.width(), size.height()}, Components);
    if (fitted.isEmpty())
        return false;
    reader.setScaledSize({fitted.width, fitted.height});
    const QImage read = reader.read().convertToFormat(QImage::Format_RGBA8888).mirrored();
    if (read.isNull())
        return false;
    std::vector<unsigned char> pixels; // without the padding of lines
    for (int y = 0; y < read.height(); ++y)
        pixels.insert(pixels.end(), read.constScanLine(y), read.constScanLine(y) + Components * read.width());
    image.setValue(read.width(), read.height(), Components, pixels.data());
    return true;
}

} // namespace profiler
