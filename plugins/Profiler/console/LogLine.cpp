// SPDX-License-Identifier: MIT
#include "console/LogLine.h"

#include <functional>

namespace profiler
{

void LogChunk::append(std::string_view text, LogKind kind, std::uint16_t thread, std::int64_t time)
{
    const std::size_t hash = std::hash<std::string_view>()(text) * 31 + std::size_t(kind);
    m_lines.push_back({time, std::uint32_t(m_text.size()), std::uint32_t(text.size()),
                       std::uint32_t(hash ^ hash >> 32), thread, kind});
    m_text += text;
    m_text += '\n';
}

std::size_t LogChunk::appendFrom(const LogChunk& other, std::size_t first)
{
    std::size_t i = first;
    for (; i < other.size() && !isFull(); ++i) {
        LogLine line = other.line(i);
        line.start = std::uint32_t(m_text.size());
        m_text += other.text(i);
        m_text += '\n';
        m_lines.push_back(line);
    }
    return i - first;
}

} // namespace profiler
