// SPDX-License-Identifier: MIT
#include <xsg/values/ValueScan.h>

#include <array>

namespace
{

/// A set of characters to look for, one look-up for each byte: values may be very long.
class Stops
{
public:
    explicit Stops(std::string_view characters)
    {
        for (const char c : characters)
            m_has[static_cast<unsigned char>(c)] = true;
    }
    // The first place of one of them from `at` on, or the end of the text.
    std::size_t find(std::string_view text, std::size_t at) const
    {
        const bool* has = m_has.data();
        const char* place = text.data() + at;
        const char* end = text.data() + text.size();
        while (place != end && !has[static_cast<unsigned char>(*place)])
            ++place;
        return static_cast<std::size_t>(place - text.data());
    }

private:
    std::array<bool, 256> m_has{};
};

} // namespace

bool xsg::ValueScan::advance(std::string_view text)
{
    static const Stops listStops("\"]");
    static const Stops otherStops("\"\n!<}#");
    if (m_at == 0)
        m_isList = !text.empty() && text.front() == '[';
    while (!m_isFound && (m_quote == None || skipQuoted(text))) {
        m_at = (m_isList ? listStops : otherStops).find(text, m_at);
        if (m_at == text.size())
            return false;
        m_isFound = text[m_at] != '"';
        if (!m_isFound)
            m_quote = m_at;
        if (!m_isFound || m_isList)
            ++m_at;
    }
    return m_isFound;
}

// False where the text ends within the quotes.
bool xsg::ValueScan::skipQuoted(std::string_view text)
{
    static const Stops stops("\"\\");
    while (true) {
        m_at = stops.find(text, m_at);
        const bool isEscape = m_at < text.size() && text[m_at] == '\\';
        if (m_at + (isEscape ? 1 : 0) >= text.size())
            return false;
        m_at += isEscape ? 2 : 1;
        if (!isEscape)
            break;
    }
    m_quote = None;
    return true;
}

std::size_t xsg::ValueScan::getOpen() const
{
    if (m_isFound)
        return None;
    return m_quote != None || !m_isList ? m_quote : 0;
}
