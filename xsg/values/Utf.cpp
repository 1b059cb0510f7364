// SPDX-License-Identifier: MIT
#include <xsg/values/Utf.h>

namespace xsg
{
namespace
{

constexpr char32_t Replacement = 0xFFFD;

bool isHighSurrogate(char32_t c)
{
    return c >= 0xD800 && c < 0xDC00;
}
bool isLowSurrogate(char32_t c)
{
    return c >= 0xDC00 && c < 0xE000;
}
bool isSurrogate(char32_t c)
{
    return c >= 0xD800 && c < 0xE000;
}

void appendUtf16(std::u16string& out, char32_t c)
{
    if (c < 0x10000) {
        out += static_cast<char16_t>(c);
        return;
    }
    out += static_cast<char16_t>(0xD7C0 + (c >> 10));
    out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
}

struct Sequence {
    int continuationBytes;
    char32_t leadBits;
    char32_t smallest; // below it the encoding is overlong
};

Sequence sequenceOf(unsigned char lead)
{
    if (lead < 0x80)
        return {0, lead, 0};
    if ((lead & 0xE0U) == 0xC0U)
        return {1, lead & 0x1FU, 0x80};
    if ((lead & 0xF0U) == 0xE0U)
        return {2, lead & 0x0FU, 0x800};
    if ((lead & 0xF8U) == 0xF0U)
        return {3, lead & 0x07U, 0x10000};
    return {-1, 0, 0};
}

} // namespace

void appendUtf8(std::string& out, char32_t c)
{
    const auto byte = [&out](char32_t bits) { out += static_cast<char>(static_cast<unsigned char>(bits)); };
    if (c < 0x80) {
        byte(c);
    } else if (c < 0x800) {
        byte(0xC0 | (c >> 6));
        byte(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        byte(0xE0 | (c >> 12));
        byte(0x80 | ((c >> 6) & 0x3F));
        byte(0x80 | (c & 0x3F));
    } else {
        byte(0xF0 | (c >> 18));
        byte(0x80 | ((c >> 12) & 0x3F));
        byte(0x80 | ((c >> 6) & 0x3F));
        byte(0x80 | (c & 0x3F));
    }
}

std::optional<char32_t> decodeUtf8(std::string_view text, std::size_t& at)
{
    const Sequence s = sequenceOf(static_cast<unsigned char>(text[at]));
    const std::size_t start = at++;
    if (s.continuationBytes < 0)
        return std::nullopt;
    char32_t c = s.leadBits;
    for (int i = 1; i <= s.continuationBytes; ++i) {
        const std::size_t next = start + static_cast<std::size_t>(i);
        if (next >= text.size() || (static_cast<unsigned char>(text[next]) & 0xC0U) != 0x80U)
            return std::nullopt;
        c = (c << 6) | (static_cast<unsigned char>(text[next]) & 0x3FU);
    }
    if (c < s.smallest || c > 0x10FFFF || isSurrogate(c))
        return std::nullopt;
    at = start + 1 + static_cast<std::size_t>(s.continuationBytes);
    return c;
}

std::string utf16ToUtf8(std::u16string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (isHighSurrogate(c) && i + 1 < text.size() && isLowSurrogate(text[i + 1]))
            c = ((c - 0xD7C0) << 10) + (text[++i] - 0xDC00U);
        appendUtf8(out, isSurrogate(c) ? Replacement : c);
    }
    return out;
}

std::size_t wholeCharacters(std::string_view text, std::size_t place)
{
    constexpr int MostContinuations = 3;
    const auto isContinuation = [&](std::size_t at) {
        return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
    };
    for (int i = 0; i < MostContinuations && place > 0 && isContinuation(place); ++i)
        --place;
    return place;
}

std::u16string utf8ToUtf16(std::string_view text)
{
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
        appendUtf16(out, decodeUtf8(text, at).value_or(Replacement));
    return out;
}

} // namespace xsg
