// SPDX-License-Identifier: MIT
#include "console/LogRows.h"

#include <algorithm>

namespace profiler
{

namespace
{

// Lines that the memory is asked for ahead of their turn.
constexpr std::size_t Ahead = 16;

} // namespace

void LogRows::setRule(const Rule& rule)
{
    m_rule = rule;
    m_rows.clear();
    m_seen.clear();
    m_removed = 0;
    m_next = m_store.begin();
    m_contextFrom = m_next;
    m_contextTo = m_next;
}

int LogRows::lowerBound(std::uint64_t line) const
{
    const auto found =
        std::lower_bound(m_rows.begin(), m_rows.end(), line,
                         [](const LogRow& each, std::uint64_t wanted) { return each.line < wanted; });
    return int(found - m_rows.begin());
}

void LogRows::removeFirst(int count)
{
    m_rows.erase(m_rows.begin(), m_rows.begin() + count);
    m_removed += std::uint64_t(count);
}

LogRows::News LogRows::follow()
{
    News news;
    m_next = std::max(m_next, m_store.begin());
    if (isDone())
        return news;
    const LogStore::Place place = m_store.find(m_next);
    const LogChunk& chunk = *place.chunk;
    const bool wantsAll = m_rule.filter.wantsAll();
    LogBits wanted;
    if (!wantsAll)
        m_rule.filter.apply(chunk, place.line, wanted);
    news.rows.reserve(chunk.size() - place.line);
    for (std::size_t i = place.line; i < chunk.size(); ++i, ++m_next) {
        if (m_rule.fold == LogFold::All && i + Ahead < chunk.size())
            m_seen.prefetch(chunk.line(i + Ahead).hash);
        if (wantsAll || wanted[i])
            take(news, m_next, {&chunk, i});
        else if (m_next < m_contextTo)
            push(news, m_next, true);
    }
    return news;
}

void LogRows::take(News& news, std::uint64_t line, const LogStore::Place& place)
{
    if (m_rule.context > 0)
        pushBefore(news, line);
    m_contextTo = line + std::uint64_t(m_rule.context) + 1;
    LogRow* equal = findEqual(news, place);
    if (equal) {
        ++equal->count;
        m_contextFrom = line + 1;
    } else {
        push(news, line, false);
        m_lastHash = place.chunk->line(place.line).hash;
    }
}

void LogRows::pushBefore(News& news, std::uint64_t line)
{
    const auto around = std::uint64_t(m_rule.context);
    for (std::uint64_t each = std::max({m_contextFrom, m_store.begin(), line - std::min(line, around)});
         each < line; ++each)
        push(news, each, true);
}

void LogRows::push(News& news, std::uint64_t line, bool isContext)
{
    news.rows.push_back({line, 1, isContext});
    m_contextFrom = line + 1;
}

std::uint64_t LogRows::numRowsEver(const News& news) const
{
    return m_removed + m_rows.size() + news.rows.size();
}

LogRow* LogRows::rowAt(News& news, std::uint64_t row)
{
    if (row < m_removed)
        return nullptr;
    const std::size_t index = std::size_t(row - m_removed);
    if (index >= m_rows.size())
        return index - m_rows.size() < news.rows.size() ? &news.rows[index - m_rows.size()] : nullptr;
    return &m_rows[index];
}

LogRow* LogRows::lastRow(News& news)
{
    if (!news.rows.empty())
        return &news.rows.back();
    return m_rows.empty() ? nullptr : &m_rows.back();
}

// Rows that come with the news need no word.
void LogRows::noteCounted(News& news, std::uint64_t row) const
{
    if (row - m_removed >= m_rows.size())
        return;
    const int counted = int(row - m_removed);
    news.firstCounted = news.firstCounted < 0 ? counted : std::min(news.firstCounted, counted);
    news.lastCounted = std::max(news.lastCounted, counted);
}

LogRow* LogRows::findEqual(News& news, const LogStore::Place& place)
{
    if (m_rule.fold == LogFold::All)
        return findSeen(news, place);
    if (m_rule.fold == LogFold::None || place.chunk->line(place.line).hash != m_lastHash)
        return nullptr;
    LogRow* last = lastRow(news);
    if (!last || last->isContext || last->line < m_store.begin() || !m_store.isEqual(last->line, place))
        return nullptr;
    noteCounted(news, numRowsEver(news) - 1);
    return last;
}

// Notes the line as one that is about to get a row where there is none of an equal one.
LogRow* LogRows::findSeen(News& news, const LogStore::Place& place)
{
    const auto isEqual = [&](std::uint64_t row) {
        const LogRow* seen = rowAt(news, row);
        return seen && seen->line >= m_store.begin() && m_store.isEqual(seen->line, place);
    };
    const std::uint32_t hash = place.chunk->line(place.line).hash;
    const std::int64_t row = m_seen.findOrAdd(hash, numRowsEver(news), m_removed, isEqual);
    if (row < 0)
        return nullptr;
    noteCounted(news, std::uint64_t(row));
    return rowAt(news, std::uint64_t(row));
}

void LogRows::add(const std::vector<LogRow>& rows)
{
    m_rows.insert(m_rows.end(), rows.begin(), rows.end());
}

} // namespace profiler
