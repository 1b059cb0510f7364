// SPDX-License-Identifier: MIT
// Numbers of cells as text, and from text and calculation, always in the C locale.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

namespace inspector
{

namespace CellNumber
{

/// The shortest text that reads back to the same bits.
template <class Number>
QString text(Number number)
{
    std::array<char, 32> buffer; // the longest double has 24 characters
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return QString::fromLatin1(buffer.data(), int(end.ptr - buffer.data()));
}

/// The text without blanks and a leading plus, in bytes; a comma in a lone number is its decimal sign.
inline QByteArray normalized(const QString& text)
{
    QByteArray bytes = text.trimmed().toUtf8();
    if (bytes.startsWith('+') && bytes.size() > 1 && bytes[1] != '-' && bytes[1] != '+')
        bytes.remove(0, 1);
    if (bytes.count(',') == 1 && !bytes.contains('.'))
        bytes.replace(',', '.');
    return bytes;
}

template <class Number>
bool readWhole(const char* begin, const char* end, Number& number, int base = 10)
{
    if constexpr (std::is_integral_v<Number>) {
        const auto read = std::from_chars(begin, end, number, base);
        return read.ec == std::errc() && read.ptr == end;
    } else {
        const auto read = std::from_chars(begin, end, number);
        return read.ec == std::errc() && read.ptr == end;
    }
}

/// False, without a change, for a text that is no number of this type.
template <class Number>
bool read(const QString& text, Number& number)
{
    const QByteArray bytes = normalized(text);
    const char* begin = bytes.constData();
    const char* end = begin + bytes.size();
    Number value{};
    bool isRead = false;
    if (std::is_integral_v<Number> && (bytes.startsWith("0x") || bytes.startsWith("0X")))
        isRead = readWhole(begin + 2, end, value, 16);
    else
        isRead = readWhole(begin, end, value);
    if (isRead)
        number = value;
    return isRead;
}

/// False where the type cannot hold the number; integers take the nearest one.
template <class Number>
bool convert(double from, Number& number)
{
    if constexpr (std::is_integral_v<Number>) {
        const double rounded = std::round(from);
        const bool fits = rounded >= double(std::numeric_limits<Number>::lowest()) &&
                          rounded <= double(std::numeric_limits<Number>::max());
        if (fits)
            number = Number(rounded);
        return fits;
    } else {
        const bool fits =
            !std::isfinite(from) || std::abs(from) <= double(std::numeric_limits<Number>::max());
        if (fits)
            number = Number(from);
        return fits;
    }
}

} // namespace CellNumber

} // namespace inspector
