// SPDX-License-Identifier: MIT
#include <xsg/render/PixmapFile.h>

#include <xsg/fields/SoSFImage.h>
#include <xsg/render/PixelScaling.h>

#include <algorithm>
#include <fstream>
#include <limits>

namespace
{

constexpr int LargestSide = 1 << 15;

// Numbers are separated by white space and comments.
bool readNumber(std::istream& in, int& value)
{
    while ((in >> std::ws) && in.peek() == '#')
        in.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    return static_cast<bool>(in >> value);
}

// From the top down to from the bottom up.
void turnOver(std::vector<unsigned char>& pixels, std::size_t row)
{
    for (std::size_t low = 0, high = pixels.size(); high - low >= 2 * row; low += row, high -= row)
        std::swap_ranges(pixels.data() + low, pixels.data() + low + row, pixels.data() + high - row);
}

} // namespace

bool xsg::readPixmap(const char* path, SoSFImage& image, const SoImageFit& fit)
{
    std::ifstream in(path, std::ios::binary);
    in.imbue(std::locale::classic());
    char magic[2] = {};
    int width = 0;
    int height = 0;
    int depth = 0;
    if (!in.read(magic, 2) || magic[0] != 'P' || (magic[1] != '5' && magic[1] != '6'))
        return false;
    if (!readNumber(in, width) || !readNumber(in, height) || !readNumber(in, depth) || depth != 255 ||
        width <= 0 || height <= 0 || width > LargestSide || height > LargestSide)
        return false;
    in.get(); // the one blank before the pixels
    const int components = magic[1] == '5' ? 1 : 3;
    const SoImageSize size = fit({width, height}, components);
    if (size.isEmpty())
        return false;
    // Grows with what is really there, not with what the header claims.
    PixelScaling pixels({width, height}, size, components);
    std::vector<unsigned char> line(static_cast<std::size_t>(width) * static_cast<std::size_t>(components));
    for (int y = 0; y < height; ++y) {
        if (!in.read(reinterpret_cast<char*>(line.data()), static_cast<std::streamsize>(line.size())))
            return false;
        pixels.add(line.data());
    }
    turnOver(pixels.getPixels(), static_cast<std::size_t>(size.width) * static_cast<std::size_t>(components));
    image.setValue(size.width, size.height, components, pixels.getPixels().data());
    return true;
}
