// SPDX-License-Identifier: MIT
#include <xsg/values/Printable.h>

#include <xsg/values/Utf.h>

#include <cstdio>

namespace
{

// Bytes of a long text that are shown of its beginning and of its end; a sentence has its reason at its end.
constexpr std::size_t Longest = 2000;
constexpr std::size_t ShownFirst = 1200;
constexpr std::size_t ShownLast = 600;

bool isBetween(char32_t c, char32_t first, char32_t last)
{
    return c >= first && c <= last;
}

// Cannot be seen, and changes how other characters are.
bool isFormat(char32_t c)
{
    return isBetween(c, 0x200E, 0x200F) || isBetween(c, 0x2028, 0x202E) || isBetween(c, 0x2066, 0x2069) ||
           c == 0xFEFF || isBetween(c, 0xFFF9, 0xFFFB) || isBetween(c, 0xE0000, 0xE007F) ||
           isBetween(c, 0xFDD0, 0xFDEF) || (c & 0xFFFEU) == 0xFFFE;
}

void appendCode(std::string& out, const char* format, unsigned code)
{
    char text[16];
    std::snprintf(text, sizeof text, format, code);
    out += text;
}

void appendPrintable(std::string& out, std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        const auto byte = static_cast<unsigned char>(text[at]);
        const std::optional<char32_t> c = xsg::decodeUtf8(text, at);
        if (!c)
            appendCode(out, "\\x%02X", byte);
        else if (*c < 0x20 || isBetween(*c, 0x7F, 0x9F))
            appendCode(out, "\\x%02X", static_cast<unsigned>(*c));
        else if (isFormat(*c))
            appendCode(out, "\\u%04X", static_cast<unsigned>(*c));
        else
            xsg::appendUtf8(out, *c);
    }
}

} // namespace

std::string xsg::printable(std::string_view text)
{
    std::string out;
    if (text.size() <= Longest) {
        appendPrintable(out, text);
        return out;
    }
    appendPrintable(out, text.substr(0, wholeCharacters(text, ShownFirst)));
    out += " \xE2\x80\xA6 "; // an ellipsis
    appendPrintable(out, text.substr(wholeCharacters(text, text.size() - ShownLast)));
    return out;
}
