// SPDX-License-Identifier: MIT
// Conversions between UTF-8 and UTF-16; whatever is malformed becomes U+FFFD, one per bad unit. Written here,
// since utfcpp replaces malformed sequences as a whole in UTF-8 and throws in UTF-16, so that the loops would
// stay.
#pragma once

#include <xsg/values/XsgExport.h>

#include <optional>
#include <string>
#include <string_view>

namespace xsg
{

XSG_API std::string utf16ToUtf8(std::u16string_view text);
XSG_API std::u16string utf8ToUtf16(std::string_view text);
XSG_API void appendUtf8(std::string& out, char32_t codePoint);
/// The code point at `at`, moving past it; nothing, moving past one byte, where that is malformed.
XSG_API std::optional<char32_t> decodeUtf8(std::string_view text, std::size_t& at);
/// A place at or before this one, which lies in the text, that cuts no character.
XSG_API std::size_t wholeCharacters(std::string_view text, std::size_t place);

} // namespace xsg
