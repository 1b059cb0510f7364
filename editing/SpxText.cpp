// SPDX-License-Identifier: MIT
#include "SpxText.h"

#include <xsg/core/SoField.h>

#include <array>
#include <charconv>

namespace
{

template <class Number>
QString shortest(Number number)
{
    std::array<char, 32> text; // the longest, -2.2250738585072014e-308, has 24 characters
    const std::to_chars_result end = std::to_chars(text.data(), text.data() + text.size(), number);
    return QString::fromLatin1(text.data(), int(end.ptr - text.data()));
}

// Qt takes the shortest text of the largest float, which is a little above that number, for an overflow.
float roundedToFloat(const QString& text)
{
    const QByteArray bytes = text.toLatin1();
    const char* end = bytes.data() + bytes.size();
    float value = 0;
    const std::from_chars_result result = std::from_chars(bytes.data(), end, value);
    return result.ec == std::errc() && result.ptr == end ? value : 0.F;
}

} // namespace

QString SpxText::toQString(const SbString& text)
{
    return QString::fromStdU16String(text.toUtf16());
}

QString SpxText::toQString(SbName name)
{
    return QString::fromLatin1(name.getString(), name.getLength());
}

SbString SpxText::toSbString(const QString& text)
{
    return SbString::fromUtf16(text.toStdU16String());
}

QString SpxText::ofField(const SoField& field)
{
    SbString text;
    field.get(text);
    return toQString(text);
}

QString SpxText::ofNumber(float number)
{
    return shortest(number);
}

QString SpxText::ofNumber(double number)
{
    return shortest(number);
}

float SpxText::toFloatOr0(const QString& text)
{
    bool ok = false;
    const float value = text.toFloat(&ok);
    return ok ? value : roundedToFloat(text);
}

double SpxText::toDoubleOr0(const QString& text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? value : 0.0;
}
