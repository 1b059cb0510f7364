// SPDX-License-Identifier: MIT
#include <xsg/values/SbString.h>

#include <xsg/values/Utf.h>

SbString::SbString(const char* text)
    : m_text(text ? text : "")
    , m_null(!text)
{
}

SbString::SbString(std::string text)
    : m_text(std::move(text))
    , m_null(false)
{
}

SbString::SbString(std::string_view text)
    : m_text(text)
    , m_null(false)
{
}

SbString SbString::fromUtf16(std::u16string_view text)
{
    return SbString(xsg::utf16ToUtf8(text));
}

std::u16string SbString::toUtf16() const
{
    return xsg::utf8ToUtf16(m_text);
}

void SbString::makeNull()
{
    m_text.clear();
    m_null = true;
}

std::string& SbString::edit()
{
    m_null = false;
    return m_text;
}
