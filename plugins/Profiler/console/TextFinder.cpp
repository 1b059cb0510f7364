// SPDX-License-Identifier: MIT
#include "console/TextFinder.h"

#include <cstdint>
#include <cstring>

namespace profiler
{

namespace
{

// A vector of GCC and Clang, on every processor.
using Block = std::uint8_t __attribute__((vector_size(16)));
constexpr std::size_t BlockSize = sizeof(Block);

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c | 0x20) : c;
}

bool isLetter(char c)
{
    return c >= 'a' && c <= 'z';
}

Block blockOf(std::uint8_t byte)
{
    return Block{} + byte;
}

Block blockAt(const char* place)
{
    Block block;
    std::memcpy(&block, place, BlockSize);
    return block;
}

bool isAnySet(const Block& block)
{
    std::uint64_t halves[2];
    std::memcpy(halves, &block, BlockSize);
    return (halves[0] | halves[1]) != 0;
}

/// Compares the bytes of a block with one byte, whatever the case.
struct ByteTest {
    explicit ByteTest(char c)
        : wanted(blockOf(std::uint8_t(c)))
        , caseBit(blockOf(isLetter(c) ? 0x20 : 0))
    {
    }
    Block operator()(const char* place) const { return Block((blockAt(place) | caseBit) == wanted); }

    Block wanted;
    Block caseBit;
};

} // namespace

TextFinder::TextFinder(std::string wanted)
    : m_wanted(std::move(wanted))
{
    for (char& c : m_wanted)
        c = lower(c);
}

bool TextFinder::isAt(const char* place) const
{
    for (std::size_t i = 0; i < m_wanted.size(); ++i) {
        if (lower(place[i]) != m_wanted[i])
            return false;
    }
    return true;
}

std::size_t TextFinder::find(std::string_view text, std::size_t from) const
{
    const std::size_t length = m_wanted.size();
    if (length == 0 || text.size() < length)
        return text.npos;
    const std::size_t places = text.size() - length + 1;
    const ByteTest isFirst(m_wanted.front());
    const ByteTest isLast(m_wanted.back());
    std::size_t i = from;
    for (; i + BlockSize <= places; i += BlockSize) {
        const char* place = text.data() + i;
        const Block both = isFirst(place) & isLast(place + length - 1);
        if (!isAnySet(both))
            continue;
        for (std::size_t k = 0; k < BlockSize; ++k) {
            if (both[k] && isAt(place + k))
                return i + k;
        }
    }
    for (; i < places; ++i) {
        if (isAt(text.data() + i))
            return i;
    }
    return text.npos;
}

} // namespace profiler
