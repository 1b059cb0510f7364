// SPDX-License-Identifier: MIT
#include "console/LogStore.h"

#include <algorithm>

namespace profiler
{

namespace
{

// Fewer are copied to the end of the last chunk, more become a chunk of their own.
constexpr std::size_t FewLines = LogChunk::MostLines / 4;

} // namespace

void LogStore::append(LogChunk&& chunk)
{
    std::size_t copied = 0;
    if (!m_chunks.empty() && chunk.size() < FewLines) {
        LogChunk& last = m_chunks.back().chunk;
        m_bytes -= last.bytes();
        copied = last.appendFrom(chunk, 0);
        m_bytes += last.bytes();
    }
    const std::size_t size = chunk.size();
    if (copied < size) {
        LogChunk rest;
        if (copied > 0)
            rest.appendFrom(chunk, copied);
        else
            rest = std::move(chunk);
        m_bytes += rest.bytes();
        m_chunks.push_back({m_end + copied, std::move(rest)});
    }
    m_end += size;
}

// The last chunk always stays.
std::uint64_t LogStore::firstToKeep() const
{
    std::size_t bytes = m_bytes;
    auto first = m_chunks.begin();
    while (m_chunks.end() - first > 1 && (m_end - first->first > m_mostLines || bytes > m_mostBytes)) {
        bytes -= first->chunk.bytes();
        ++first;
    }
    return first == m_chunks.end() ? m_end : first->first;
}

void LogStore::trim()
{
    const std::uint64_t first = firstToKeep();
    while (begin() < first) {
        m_dropped += m_chunks.front().chunk.size();
        m_bytes -= m_chunks.front().chunk.bytes();
        m_chunks.pop_front();
    }
}

void LogStore::clear()
{
    m_chunks.clear();
    m_bytes = 0;
    m_dropped = 0;
}

// Most chunks hold about as many lines, so that the first guess is nearly always right.
LogStore::Place LogStore::find(std::uint64_t number) const
{
    const std::uint64_t lines = m_end - m_chunks.front().first;
    const std::uint64_t guess = (number - m_chunks.front().first) * m_chunks.size() / lines;
    for (std::uint64_t i = guess; i < m_chunks.size() && i <= guess + 1; ++i) {
        if (m_chunks[i].holds(number))
            return m_chunks[i].placeOf(number);
    }
    const auto after =
        std::upper_bound(m_chunks.begin(), m_chunks.end(), number,
                         [](std::uint64_t wanted, const Numbered& each) { return wanted < each.first; });
    return std::prev(after)->placeOf(number);
}

const LogLine& LogStore::line(std::uint64_t number) const
{
    const Place place = find(number);
    return place.chunk->line(place.line);
}

std::string_view LogStore::text(std::uint64_t number) const
{
    const Place place = find(number);
    return place.chunk->text(place.line);
}

bool LogStore::isEqual(std::uint64_t number, const Place& other) const
{
    const Place place = find(number);
    const LogLine& one = place.chunk->line(place.line);
    const LogLine& second = other.chunk->line(other.line);
    return one.hash == second.hash && one.kind == second.kind &&
           place.chunk->text(place.line) == other.chunk->text(other.line);
}

} // namespace profiler
