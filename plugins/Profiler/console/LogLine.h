// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace profiler
{

enum class LogKind : std::uint8_t { Output, Info, Warning, Error };
constexpr int LogKinds = 4;

/// One line of text. The bytes are as they were written, without the line end.
struct LogLine {
    std::int64_t time;   // milliseconds since 1970
    std::uint32_t start; // in the chunk's text
    std::uint32_t length;
    std::uint32_t hash; // of text and kind
    std::uint16_t thread;
    LogKind kind;
};

/// Lines one behind the other, each with a line feed after it, so that all can be searched at once. A plain
/// value.
class LogChunk
{
public:
    static constexpr std::size_t MostLines = 4096;
    static constexpr std::size_t MostBytes = 1 << 20;
    /// A longer line is kept in pieces.
    static constexpr std::size_t LongestLine = 16384;

    bool isFull() const { return m_lines.size() >= MostLines || m_text.size() >= MostBytes; }
    std::size_t size() const { return m_lines.size(); }
    std::size_t bytes() const { return m_text.capacity() + m_lines.capacity() * sizeof(LogLine); }
    /// How many lines of it are of a kind.
    std::size_t countOf(LogKind kind) const { return m_counts[std::size_t(kind)]; }
    const LogLine& line(std::size_t i) const { return m_lines[i]; }
    std::string_view text(std::size_t i) const
    {
        return {m_text.data() + m_lines[i].start, m_lines[i].length};
    }
    const std::string& allText() const { return m_text; }
    std::string_view textFrom(std::size_t line) const
    {
        const std::size_t start = line < m_lines.size() ? m_lines[line].start : m_text.size();
        return std::string_view(m_text).substr(start);
    }

    /// One line, or a piece of one; text holds no line feed.
    void append(std::string_view text, LogKind kind, std::uint16_t thread, std::int64_t time);
    /// Memory for as many lines and bytes as another has, so that a full chunk is not moved while it grows.
    void reserveLike(const LogChunk& other);
    /// The lines of another from this one on, as far as there is room. Returns how many.
    std::size_t appendFrom(const LogChunk& other, std::size_t first);

private:
    void add(LogLine line, std::string_view text);

    std::string m_text;
    std::vector<LogLine> m_lines;
    std::array<std::uint16_t, LogKinds> m_counts{};
};

} // namespace profiler
