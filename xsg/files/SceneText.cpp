// SPDX-License-Identifier: MIT
#include <xsg/files/SceneText.h>

#include <algorithm>

namespace
{

// More than this is given back when it is passed.
constexpr std::size_t MostKept = std::size_t{64} << 20U;

} // namespace

xsg::SceneText::SceneText(std::string_view whole)
    : m_known(whole)
{
    cutAtZero(0);
}

xsg::SceneText::SceneText(Source source)
    : m_source(std::move(source))
{
}

bool xsg::SceneText::load(std::size_t size)
{
    m_isCutShort |= m_hasZero;
    if (!m_source)
        return false;
    const std::size_t before = m_buffer.size();
    m_buffer.resize(before + size);
    m_buffer.resize(before + m_source(m_buffer.data() + before, size));
    m_known = m_buffer;
    if (m_buffer.size() == before)
        m_source = nullptr;
    cutAtZero(before);
    return m_known.size() > before || load(size);
}

void xsg::SceneText::cutAtZero(std::size_t from)
{
    const std::size_t zero = m_known.find('\0', from);
    if (zero == std::string_view::npos)
        return;
    m_known = m_known.substr(0, zero);
    m_hasZero = true;
    m_source = nullptr;
}

void xsg::SceneText::pass(std::size_t at)
{
    const std::string_view passed = m_known.substr(m_counted - m_start, at - m_counted);
    for (std::size_t newline = passed.find('\n'); newline != std::string_view::npos;
         newline = passed.find('\n', newline + 1)) {
        ++m_line;
        m_lineStart = m_counted + newline + 1;
    }
    m_counted = at;
    const std::size_t unused = at - m_start;
    if (unused >= PieceBytes && unused >= m_known.size() - unused)
        dropPassed(at);
}

void xsg::SceneText::dropPassed(std::size_t at)
{
    if (m_buffer.empty())
        return; // a text in memory, which is another's
    const std::size_t unused = at - m_start;
    const std::size_t kept = m_known.size() - unused;
    if (m_buffer.capacity() > MostKept)
        m_buffer = m_buffer.substr(unused);
    else
        m_buffer.erase(0, unused);
    m_known = std::string_view(m_buffer).substr(0, kept);
    m_start = at;
}

xsg::SceneText::Place xsg::SceneText::placeOf(std::size_t at) const
{
    const std::string_view before = m_known.substr(m_counted - m_start, at - m_counted);
    const std::size_t newline = before.rfind('\n');
    const auto line = m_line + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
    const std::size_t start = newline == std::string_view::npos ? m_lineStart : m_counted + newline + 1;
    return {line, static_cast<int>(at - start) + 1};
}
