// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/SoImageReader.h>
#include <xsg/values/XsgExport.h>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace xsg
{

/// Makes a smaller picture, row by row, each pixel the mean of those that it stands for: what has come in so
/// far need not be kept.
class XSG_API PixelScaling
{
public:
    PixelScaling(const SoImageSize& from, const SoImageSize& to, int components);
    /// The next row, of from.width pixels.
    void add(const unsigned char* row);
    /// The rows that are complete, in the order in which they came.
    std::vector<unsigned char>& getPixels() { return m_pixels; }

private:
    void finishRow();

    SoImageSize m_from;
    SoImageSize m_to;
    std::size_t m_components;
    int m_row = 0; // the next to come
    std::size_t m_rowsInSum = 0;
    std::vector<std::size_t> m_sums;
    std::vector<unsigned char> m_pixels;
};

} // namespace xsg
