// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/live/values/LiveValue.h>

#include <cstring>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace scopix::live
{

/// Values of a fixed size, from and to what a program keeps them as: packed(ValueKind::Vec3f, position) of a
/// `float[3]`, or of any plain structure that has the size of the kind.
template <class T>
Value packed(ValueKind kind, const T& element)
{
    static_assert(std::is_trivially_copyable_v<T>);
    const auto* start = reinterpret_cast<const std::uint8_t*>(&element);
    return {kind, false, {start, start + sizeof(T)}};
}

/// A list of `count` elements that lie one behind the other.
template <class T>
Value packedList(ValueKind kind, const T* elements, std::size_t count)
{
    static_assert(std::is_trivially_copyable_v<T>);
    const auto* start = reinterpret_cast<const std::uint8_t*>(elements);
    return {kind, true, {start, start + sizeof(T) * count}};
}

/// None where the value is of another size.
template <class T>
std::optional<T> unpacked(const Value& value)
{
    static_assert(std::is_trivially_copyable_v<T>);
    if (value.bytes.size() != sizeof(T))
        return std::nullopt;
    T element;
    std::memcpy(&element, value.bytes.data(), sizeof(T));
    return element;
}

/// The elements of a list; what is left of its bytes is no element.
template <class T>
std::vector<T> unpackedList(const Value& value)
{
    static_assert(std::is_trivially_copyable_v<T>);
    std::vector<T> elements(value.bytes.size() / sizeof(T));
    if (!elements.empty())
        std::memcpy(elements.data(), value.bytes.data(), elements.size() * sizeof(T));
    return elements;
}

SCOPIX_LIVE_API Value packedText(const std::string& text, ValueKind kind = ValueKind::String);
SCOPIX_LIVE_API Value packedTexts(const std::vector<std::string>& texts, ValueKind kind = ValueKind::String);

/// The texts of a value of kind String or Text: one, or those of a list. None where it is damaged or of
/// another kind.
SCOPIX_LIVE_API std::optional<std::vector<std::string>> unpackedTexts(const Value& value);

/// The bytes of a picture with `components` bytes a pixel, bottom row first.
SCOPIX_LIVE_API Value packedImage(std::uint32_t width, std::uint32_t height, std::uint32_t components,
                                  const std::uint8_t* pixels);

} // namespace scopix::live
