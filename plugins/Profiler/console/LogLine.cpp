// SPDX-License-Identifier: MIT
#include "console/LogLine.h"

#include <functional>

namespace profiler
{

void LogChunk::append(std::string_view text, LogKind kind, std::uint16_t thread, std::int64_t time)
{
    const std::size_t hash = std::hash<std::string_view>()(text) * 31 + std::size_t(kind);
    add({time, 0, std::uint32_t(text.size()), std::uint32_t(hash ^ hash >> 32), thread, kind}, text);
}

void LogChunk::add(LogLine line, std::string_view text)
{
    line.start = std::uint32_t(m_text.size());
    m_lines.push_back(line);
    ++m_counts[std::size_t(line.kind)];
    m_text += text;
    m_text += '\n';
}

void LogChunk::reserveLike(const LogChunk& other)
{
    m_lines.reserve(other.m_lines.size());
    m_text.reserve(other.m_text.size());
}

std::size_t LogChunk::appendFrom(const LogChunk& other, std::size_t first)
{
    std::size_t i = first;
    for (; i < other.size() && !isFull(); ++i)
        add(other.line(i), other.text(i));
    return i - first;
}

} // namespace profiler
