// SPDX-License-Identifier: MIT
#include "LivePacking.h"

namespace scopix::live
{

namespace
{

void append(std::vector<std::uint8_t>& bytes, const void* data, std::size_t size)
{
    const auto* start = static_cast<const std::uint8_t*>(data);
    bytes.insert(bytes.end(), start, start + size);
}

void appendText(std::vector<std::uint8_t>& bytes, const std::string& text)
{
    const auto size = static_cast<std::uint32_t>(text.size());
    append(bytes, &size, sizeof size);
    append(bytes, text.data(), size);
}

} // namespace

Value packedText(const std::string& text, ValueKind kind)
{
    Value value{kind, false, {}};
    appendText(value.bytes, text);
    return value;
}

Value packedTexts(const std::vector<std::string>& texts, ValueKind kind)
{
    Value value{kind, true, {}};
    for (const std::string& text : texts)
        appendText(value.bytes, text);
    return value;
}

std::optional<std::vector<std::string>> unpackedTexts(const Value& value)
{
    if ((value.kind != ValueKind::String && value.kind != ValueKind::Text) || !isWellFormed(value))
        return std::nullopt;
    std::vector<std::string> texts;
    for (std::size_t place = 0; place < value.bytes.size();) {
        std::uint32_t size = 0;
        std::memcpy(&size, value.bytes.data() + place, sizeof size);
        place += sizeof size;
        texts.emplace_back(reinterpret_cast<const char*>(value.bytes.data()) + place, size);
        place += size;
    }
    return texts;
}

Value packedImage(std::uint32_t width, std::uint32_t height, std::uint32_t components,
                  const std::uint8_t* pixels)
{
    Value value{ValueKind::Image, false, {}};
    for (const std::uint32_t number : {width, height, components})
        append(value.bytes, &number, sizeof number);
    append(value.bytes, pixels, std::size_t(width) * height * components);
    return value;
}

} // namespace scopix::live
