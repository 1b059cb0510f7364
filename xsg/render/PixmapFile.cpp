// SPDX-License-Identifier: MIT
#include <xsg/render/PixmapFile.h>

#include <xsg/fields/SoSFImage.h>

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

} // namespace

bool xsg::readPixmap(const char* path, SoSFImage& image)
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
    const auto row = static_cast<std::size_t>(width) * static_cast<std::size_t>(components);
    // Grows with what is really there, not with what the header claims.
    std::vector<unsigned char> rows;
    std::vector<unsigned char> line(row);
    for (int y = 0; y < height; ++y) {
        if (!in.read(reinterpret_cast<char*>(line.data()), static_cast<std::streamsize>(row)))
            return false;
        rows.insert(rows.end(), line.begin(), line.end());
    }
    std::vector<unsigned char> bottomUp;
    bottomUp.reserve(rows.size());
    for (auto y = static_cast<std::size_t>(height); y-- > 0;)
        bottomUp.insert(bottomUp.end(), rows.data() + y * row, rows.data() + (y + 1) * row);
    image.setValue(width, height, components, bottomUp.data());
    return true;
}
