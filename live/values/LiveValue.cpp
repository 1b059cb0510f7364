// SPDX-License-Identifier: MIT
#include "LiveValue.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace scopix::live
{

namespace
{

constexpr std::size_t ImageHead = 3 * sizeof(std::uint32_t);

// In the order of ValueKind.
constexpr std::array<std::size_t, 29> Sizes = {0,  1, 4,  4, 8, 4, 8, 8,  12, 16, 16, 24, 32, 32, 128,
                                               16, 8, 32, 0, 0, 8, 0, 48, 4,  2,  2,  6,  4,  8};

bool isText(ValueKind kind)
{
    return kind == ValueKind::String || kind == ValueKind::Text;
}

std::uint64_t numberAt(const std::vector<std::uint8_t>& bytes, std::size_t place)
{
    std::uint32_t number = 0;
    std::memcpy(&number, bytes.data() + place, sizeof number);
    return number;
}

// Where the element ends that begins at `place`; nowhere where it is cut off.
constexpr std::size_t Nowhere = ~std::size_t(0);

std::size_t endOf(const Value& value, std::size_t place)
{
    const std::size_t left = value.bytes.size() - place;
    if (isText(value.kind)) {
        if (left < sizeof(std::uint32_t))
            return Nowhere;
        const std::uint64_t size = sizeof(std::uint32_t) + numberAt(value.bytes, place);
        return size <= left ? place + size : Nowhere;
    }
    if (left < ImageHead)
        return Nowhere;
    const std::uint64_t width = numberAt(value.bytes, place);
    const std::uint64_t height = numberAt(value.bytes, place + 4);
    const std::uint64_t components = numberAt(value.bytes, place + 8);
    const std::uint64_t pixels = width * height; // of 32 bits each: no overflow
    if (components > 4 || pixels > left)
        return Nowhere;
    const std::uint64_t size = ImageHead + pixels * components;
    return size <= left ? place + size : Nowhere;
}

// How many elements of no fixed size there are; nothing where the last one is cut off.
std::size_t countOf(const Value& value, bool& whole)
{
    std::size_t count = 0;
    std::size_t place = 0;
    while (place < value.bytes.size()) {
        place = endOf(value, place);
        if (place == Nowhere) {
            whole = false;
            return 0;
        }
        ++count;
    }
    whole = true;
    return count;
}

bool areBools(const std::vector<std::uint8_t>& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte <= 1; });
}

} // namespace

std::size_t elementSize(ValueKind kind) noexcept
{
    const auto number = static_cast<std::size_t>(kind);
    return number < Sizes.size() ? Sizes[number] : 0;
}

std::size_t Value::count() const noexcept
{
    if (!list)
        return 1;
    bool whole = true;
    const std::size_t size = elementSize(kind);
    return size ? bytes.size() / size : countOf(*this, whole);
}

bool isWellFormed(const Value& value) noexcept
{
    if (static_cast<std::size_t>(value.kind) >= Sizes.size())
        return false;
    if (value.kind == ValueKind::None)
        return value.bytes.empty();
    if (value.kind == ValueKind::Bool && !areBools(value.bytes))
        return false;
    if (const std::size_t size = elementSize(value.kind))
        return value.list ? value.bytes.size() % size == 0 : value.bytes.size() == size;
    bool whole = true;
    const std::size_t count = countOf(value, whole);
    return whole && (value.list || count == 1);
}

} // namespace scopix::live
