// SPDX-License-Identifier: MIT
#pragma once

#include "console/LogLine.h"

#include <deque>

namespace profiler
{

/// The newest lines, numbered from the first that ever came. Holds at most so many lines and bytes, give or
/// take a chunk, after trim(): the oldest chunks go when there are more. Not for several threads at once.
class LogStore
{
public:
    static constexpr std::uint64_t MostLines = 1000000;
    static constexpr std::size_t MostBytes = 256u << 20;

    explicit LogStore(std::uint64_t mostLines = MostLines, std::size_t mostBytes = MostBytes)
        : m_mostLines(mostLines)
        , m_mostBytes(mostBytes)
    {
    }

    std::uint64_t begin() const { return m_chunks.empty() ? m_end : m_chunks.front().first; }
    std::uint64_t end() const { return m_end; }
    std::size_t bytes() const { return m_bytes; }
    std::uint64_t getDropped() const { return m_dropped; }

    void append(LogChunk&& chunk);
    /// The lines before this one are too many; trim() forgets them.
    std::uint64_t firstToKeep() const;
    void trim();
    /// Lines that were lost before they came here.
    void noteDropped(std::uint64_t lines) { m_dropped += lines; }
    void clear();

    /// Of a number from begin() up to end().
    const LogLine& line(std::uint64_t number) const;
    std::string_view text(std::uint64_t number) const;
    struct Place {
        const LogChunk* chunk;
        std::size_t line;
    };
    Place find(std::uint64_t number) const;
    bool isEqual(std::uint64_t number, const Place& other) const;

private:
    struct Numbered {
        std::uint64_t first;
        LogChunk chunk;

        bool holds(std::uint64_t number) const { return number >= first && number - first < chunk.size(); }
        Place placeOf(std::uint64_t number) const { return {&chunk, std::size_t(number - first)}; }
    };

    std::uint64_t m_mostLines;
    std::size_t m_mostBytes;
    std::deque<Numbered> m_chunks;
    std::uint64_t m_end = 0;
    std::uint64_t m_dropped = 0;
    std::size_t m_bytes = 0;
};

} // namespace profiler
