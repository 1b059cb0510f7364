// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/XsgExport.h>

#include <cstddef>
#include <string>
#include <string_view>

/// A text value: bytes in UTF-8, with a null state that is not the same as the empty text.
class XSG_API SbString
{
public:
    SbString() = default;            // null
    SbString(const char* text);      // NOLINT(google-explicit-constructor): null pointer gives the null text
    SbString(std::string text);      // NOLINT(google-explicit-constructor)
    SbString(std::string_view text); // NOLINT(google-explicit-constructor)
    /// Lone surrogates become U+FFFD.
    static SbString fromUtf16(std::u16string_view text);

    /// Never a null pointer: the null text reads as "".
    const char* getString() const { return m_text.c_str(); }
    int getLength() const { return static_cast<int>(m_text.size()); }
    const std::string& str() const { return m_text; }
    /// Bytes that are no UTF-8 become U+FFFD.
    std::u16string toUtf16() const;

    bool isNull() const { return m_null; }
    void makeNull();
    /// To build a text in place: the text is no longer null.
    std::string& edit();

    friend bool operator==(const SbString& a, const SbString& b) { return a.m_text == b.m_text; }
    friend bool operator!=(const SbString& a, const SbString& b) { return !(a == b); }
    friend bool operator<(const SbString& a, const SbString& b) { return a.m_text < b.m_text; }

private:
    std::string m_text;
    bool m_null = true;
};
