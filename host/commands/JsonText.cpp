// SPDX-License-Identifier: MIT
#include "commands/JsonText.h"

#include <xsg/values/SbString.h>
#include <xsg/values/SbValueText.h>
#include <xsg/values/Utf.h>

#include <cmath>
#include <utility>

namespace scopix
{

namespace
{

constexpr char16_t Replacement = 0xFFFD;

std::string asUtf8(std::string_view bytes)
{
    const bool isUtf8 = SbString(bytes).toUtf16().find(Replacement) == std::u16string::npos;
    if (isUtf8)
        return std::string(bytes);
    std::string text;
    for (const char c : bytes)
        xsg::appendUtf8(text, static_cast<unsigned char>(c));
    return text;
}

void appendEscaped(std::string& out, char c)
{
    static constexpr char digits[] = "0123456789abcdef";
    const auto code = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\')
        out += '\\';
    if (code >= ' ') {
        out += c;
    } else if (c == '\n') {
        out += "\\n";
    } else {
        out += "\\u00";
        out += digits[code / 16];
        out += digits[code % 16];
    }
}

} // namespace

void JsonText::separate()
{
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (m_isEmpty.empty())
        return;
    m_out += m_isEmpty.back() ? "\n" : ",\n";
    m_out.append(m_isEmpty.size() > 16 ? 16 : m_isEmpty.size(), ' ');
    m_isEmpty.back() = false;
}

void JsonText::begin(char bracket)
{
    separate();
    m_out += bracket;
    m_isEmpty.push_back(true);
}

void JsonText::end(char bracket)
{
    m_isEmpty.pop_back();
    m_out += bracket;
    if (m_isEmpty.empty())
        m_out += '\n';
}

void JsonText::beginObject()
{
    begin('{');
}

void JsonText::endObject()
{
    end('}');
}

void JsonText::beginArray()
{
    begin('[');
}

void JsonText::endArray()
{
    end(']');
}

void JsonText::key(std::string_view name)
{
    text(name);
    m_out += ": ";
    m_afterKey = true;
}

void JsonText::text(std::string_view value)
{
    separate();
    m_out += '"';
    for (const char c : asUtf8(value))
        appendEscaped(m_out, c);
    m_out += '"';
}

void JsonText::number(std::int64_t value)
{
    separate();
    m_out += std::to_string(value);
}

void JsonText::number(double value)
{
    separate();
    if (std::isfinite(value))
        xsg::ValueText<double>::write(m_out, value);
    else
        m_out += "null";
}

void JsonText::boolean(bool value)
{
    separate();
    m_out += value ? "true" : "false";
}

void JsonText::text(std::string_view name, std::string_view value)
{
    key(name);
    text(value);
}

void JsonText::number(std::string_view name, std::int64_t value)
{
    key(name);
    number(value);
}

void JsonText::boolean(std::string_view name, bool value)
{
    key(name);
    boolean(value);
}

std::string JsonText::take()
{
    return std::exchange(m_out, {});
}

} // namespace scopix
