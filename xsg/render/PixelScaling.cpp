// SPDX-License-Identifier: MIT
#include <xsg/render/PixelScaling.h>

namespace
{

// Of `count` places that become `fewer`, where the one with this number begins.
std::size_t beginOf(int number, int count, int fewer)
{
    return static_cast<std::size_t>(std::int64_t{number} * count / fewer);
}

} // namespace

xsg::PixelScaling::PixelScaling(const SoImageSize& from, const SoImageSize& to, int components)
    : m_from(from)
    , m_to(to)
    , m_components(static_cast<std::size_t>(components))
    , m_sums(static_cast<std::size_t>(to.width) * m_components)
{
}

void xsg::PixelScaling::add(const unsigned char* row)
{
    if (m_from == m_to) {
        m_pixels.insert(m_pixels.end(), row, row + m_sums.size());
        return;
    }
    for (int x = 0; x < m_to.width; ++x) {
        const std::size_t end = beginOf(x + 1, m_from.width, m_to.width);
        std::size_t* sums = &m_sums[static_cast<std::size_t>(x) * m_components];
        const std::size_t begin = beginOf(x, m_from.width, m_to.width);
        for (std::size_t c = 0; c < m_components; ++c) {
            std::size_t sum = 0;
            for (std::size_t at = begin; at < end; ++at)
                sum += row[at * m_components + c];
            sums[c] += sum / (end - begin);
        }
    }
    ++m_row;
    ++m_rowsInSum;
    const auto done = static_cast<int>(m_pixels.size() / m_sums.size());
    if (static_cast<std::size_t>(m_row) == beginOf(done + 1, m_from.height, m_to.height))
        finishRow();
}

void xsg::PixelScaling::finishRow()
{
    for (std::size_t& sum : m_sums) {
        m_pixels.push_back(static_cast<unsigned char>(sum / m_rowsInSum));
        sum = 0;
    }
    m_rowsInSum = 0;
}
