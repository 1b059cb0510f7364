// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbName.h>
#include <xsg/values/SbPlane.h>
#include <xsg/values/SbRotation.h>
#include <xsg/values/SbTime.h>
#include <xsg/values/SbVec.h>

#include <charconv>
#include <string>
#include <string_view>
#include <type_traits>

/// The stored form of a bool in a list: std::vector<bool> has no addressable elements.
using SbBool = unsigned char;

namespace xsg
{

/// A place in a text that is being read.
class XSG_API TextReader
{
public:
    explicit TextReader(std::string_view text)
        : m_at(text.data())
        , m_end(text.data() + text.size())
    {
    }

    void skipBlanks()
    {
        while (m_at != m_end && isBlank(*m_at))
            ++m_at;
    }
    /// Whether a value of a list may end here.
    bool atValueEnd() const { return atEnd() || isBlank(*m_at) || *m_at == ',' || *m_at == ']'; }
    /// After a value: blanks and at most one comma.
    void skipSeparator()
    {
        skipBlanks();
        if (accept(','))
            skipBlanks();
    }
    bool atEnd() const { return m_at == m_end; }
    bool onlyBlanksLeft()
    {
        skipBlanks();
        return atEnd();
    }
    char peek() const { return atEnd() ? '\0' : *m_at; }
    bool accept(char c)
    {
        if (peek() != c || atEnd())
            return false;
        ++m_at;
        return true;
    }
    std::string_view rest() const { return {m_at, static_cast<std::size_t>(m_end - m_at)}; }
    void skip(std::size_t count) { m_at += count; }

    template <class T>
    bool readNumber(T& value);
    /// Letters, digits, '_' and every byte above 127.
    std::string_view readWord();
    /// A text in double quotes; `\" \\ \n \r \t \0 \xHH \uHHHH` are understood inside.
    bool readQuoted(std::string& out);

    /// Whether what follows a number would belong to it, as in "1.5.2", "7up" or "3-4".
    static bool continuesNumber(char c) { return isWordByte(c) || c == '.' || c == '-' || c == '+'; }
    static bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
    static bool isWordByte(char c);

private:
    template <class T>
    bool readPrefixedInteger(const char* digits, bool negative, T& value);
    bool readEscape(std::string& out);
    bool readHex(int digits, unsigned& value);

    const char* m_at;
    const char* m_end;
};

/// How long a field's value at the start of a text is, as scene files have it: a list up to its bracket,
/// anything else up to the line's end, a mark, a brace or a comment. `open` is where a list or a text in
/// quotes begins that has no end.
struct XSG_API ValueExtent {
    explicit ValueExtent(std::string_view text);
    bool isWhole() const { return open == std::string_view::npos; }

    std::size_t length = 0;
    std::size_t open = std::string_view::npos;
};

/// Without the blanks around it.
XSG_API std::string_view trimmed(std::string_view text);

XSG_API void appendQuoted(std::string& out, std::string_view text);

template <class T>
bool TextReader::readNumber(T& value)
{
    skipBlanks();
    const char* start = m_at;
    const bool negative = start != m_end && *start == '-';
    const char* digits = start;
    if (start != m_end && (*start == '-' || *start == '+'))
        ++digits;
    // "+-5" and a sign alone are no numbers; from_chars takes a minus but no plus.
    if (digits == m_end || *digits == '-' || *digits == '+')
        return false;
    if constexpr (std::is_integral_v<T>) {
        if (m_end - digits > 2 && digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X'))
            return readPrefixedInteger(digits + 2, negative, value);
        if (negative && std::is_unsigned_v<T>)
            return false;
    }
    T parsed{};
    const auto [end, error] = std::from_chars(negative ? start : digits, m_end, parsed);
    if (error != std::errc() || (end != m_end && continuesNumber(*end)))
        return false;
    value = parsed;
    m_at = end;
    return true;
}

template <class T>
bool TextReader::readPrefixedInteger(const char* digits, bool negative, T& value)
{
    unsigned long long magnitude = 0;
    const auto [end, error] = std::from_chars(digits, m_end, magnitude, 16);
    if (error != std::errc() || (end != m_end && continuesNumber(*end)))
        return false;
    constexpr auto top = static_cast<unsigned long long>(std::numeric_limits<T>::max());
    if (magnitude > top + (negative && std::is_signed_v<T> ? 1 : 0) || (negative && std::is_unsigned_v<T>))
        return false;
    value = static_cast<T>(negative ? 0ULL - magnitude : magnitude);
    m_at = end;
    return true;
}

/// One specialisation per value type: write() appends the text, read() takes it from a reader.
template <class T, class = void>
struct ValueText;

/// How values are written as text and read back. Numbers take the shortest form that reads back to the same
/// bits, in every locale. Reading is tolerant of blanks around and between numbers.
template <class T>
struct ValueText<T, std::enable_if_t<std::is_arithmetic_v<T> && !std::is_same_v<T, bool> &&
                                     !std::is_same_v<T, unsigned char>>> {
    static void write(std::string& out, T value)
    {
        char buffer[32];
        const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
        out.append(buffer, result.ptr);
    }
    static bool read(TextReader& in, T& value) { return in.readNumber(value); }
};

/// Several numbers one after the other, as most of the geometric types are.
template <class T, int N>
struct NumbersText {
    static void write(std::string& out, const T* values)
    {
        for (int i = 0; i < N; ++i) {
            if (i > 0)
                out += ' ';
            ValueText<T>::write(out, values[i]);
        }
    }
    static bool read(TextReader& in, T* values)
    {
        for (int i = 0; i < N; ++i) {
            if (i > 0)
                in.skipBlanks();
            if (!ValueText<T>::read(in, values[i]))
                return false;
        }
        return true;
    }
};

/// TRUE and FALSE; 1 and 0 and small letters are read too.
template <>
struct XSG_API ValueText<bool> {
    static void write(std::string& out, bool value);
    static bool read(TextReader& in, bool& value);
};
template <>
struct XSG_API ValueText<SbBool> {
    static void write(std::string& out, SbBool value) { ValueText<bool>::write(out, value != 0); }
    static bool read(TextReader& in, SbBool& value);
};

template <class T, int N>
struct ValueText<SbVec<T, N>> {
    static void write(std::string& out, const SbVec<T, N>& v) { NumbersText<T, N>::write(out, v.getValue()); }
    static bool read(TextReader& in, SbVec<T, N>& v) { return NumbersText<T, N>::read(in, &v[0]); }
};
template <>
struct ValueText<SbColor> : ValueText<SbVec3f> {
};
template <>
struct XSG_API ValueText<SbMatrix> {
    static void write(std::string& out, const SbMatrix& m)
    {
        NumbersText<float, 16>::write(out, m.getValue());
    }
    static bool read(TextReader& in, SbMatrix& m) { return NumbersText<float, 16>::read(in, m[0]); }
};
template <>
struct XSG_API ValueText<SbRotation> { // the four stored numbers
    static void write(std::string& out, const SbRotation& r);
    static bool read(TextReader& in, SbRotation& r);
};
template <>
struct XSG_API ValueText<SbPlane> { // normal, then distance
    static void write(std::string& out, const SbPlane& p);
    static bool read(TextReader& in, SbPlane& p);
};
template <>
struct XSG_API ValueText<SbBox3s> { // minimum corner, then maximum corner
    static void write(std::string& out, const SbBox3s& b);
    static bool read(TextReader& in, SbBox3s& b);
};
template <>
struct XSG_API ValueText<SbBox3f> {
    static void write(std::string& out, const SbBox3f& b);
    static bool read(TextReader& in, SbBox3f& b);
};
template <>
struct XSG_API ValueText<SbTime> { // seconds
    static void write(std::string& out, SbTime t);
    static bool read(TextReader& in, SbTime& t);
};
/// A string is written in double quotes. Without quotes a text is read as it stands: alone it is taken whole,
/// in a list it ends at a blank, a comma or the closing bracket.
template <>
struct XSG_API ValueText<SbString> {
    static void write(std::string& out, const SbString& s);
    static bool read(TextReader& in, SbString& s);
};
/// A name is written bare where it is a word, otherwise as a string.
template <>
struct XSG_API ValueText<SbName> {
    static void write(std::string& out, SbName n);
    static bool read(TextReader& in, SbName& n);
};

} // namespace xsg
