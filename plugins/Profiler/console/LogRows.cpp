// SPDX-License-Identifier: MIT
#include "console/LogRows.h"

#include <algorithm>

namespace profiler
{

namespace
{

constexpr std::size_t FirstSeen = 1024;

} // namespace

void LogRows::setRule(const Rule& rule)
{
    m_rule = rule;
    m_rows.clear();
    m_seen.clear();
    m_seenCount = 0;
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
    LogBits wanted;
    m_rule.filter.apply(*place.chunk, place.line, wanted);
    for (std::size_t i = place.line; i < place.chunk->size(); ++i, ++m_next) {
        if (wanted[i])
            take(news, m_next, place.chunk->line(i));
        else if (m_next < m_contextTo)
            push(news, m_next, true);
    }
    return news;
}

void LogRows::take(News& news, std::uint64_t line, const LogLine& text)
{
    const auto around = std::uint64_t(m_rule.context);
    for (std::uint64_t each = std::max({m_contextFrom, m_store.begin(), line - std::min(line, around)});
         each < line; ++each)
        push(news, each, true);
    m_contextTo = line + around + 1;
    LogRow* equal = findEqual(news, line, text.hash);
    if (equal) {
        ++equal->count;
        m_contextFrom = line + 1;
    } else {
        push(news, line, false);
    }
}

void LogRows::push(News& news, std::uint64_t line, bool isContext)
{
    news.rows.push_back({line, 1, isContext});
    m_contextFrom = line + 1;
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

LogRow* LogRows::findEqual(News& news, std::uint64_t line, std::uint32_t hash)
{
    if (m_rule.fold == LogFold::All)
        return findSeen(news, line, hash);
    const std::uint64_t rows = m_removed + m_rows.size() + news.rows.size();
    LogRow* last = m_rule.fold == LogFold::Runs && rows > 0 ? rowAt(news, rows - 1) : nullptr;
    if (!last || last->isContext || last->line < m_store.begin() || !m_store.isEqual(last->line, line))
        return nullptr;
    if (news.rows.empty())
        news.firstCounted = news.lastCounted = int(m_rows.size()) - 1;
    return last;
}

// Notes the line as one that is about to get a row where there is none of an equal one.
LogRow* LogRows::findSeen(News& news, std::uint64_t line, std::uint32_t hash)
{
    if (2 * (m_seenCount + 1) > m_seen.size())
        growSeen();
    const std::size_t mask = m_seen.size() - 1;
    std::size_t i = hash & mask;
    for (; m_seen[i].row != 0; i = (i + 1) & mask) {
        if (m_seen[i].hash != hash)
            continue;
        const std::uint64_t row = m_seen[i].row - 1;
        LogRow* seen = rowAt(news, row);
        if (!seen || seen->line < m_store.begin() || !m_store.isEqual(seen->line, line))
            continue;
        if (row - m_removed < m_rows.size()) {
            const int counted = int(row - m_removed);
            news.firstCounted = news.firstCounted < 0 ? counted : std::min(news.firstCounted, counted);
            news.lastCounted = std::max(news.lastCounted, counted);
        }
        return seen;
    }
    ++m_seenCount;
    m_seen[i] = {hash, std::uint32_t(m_removed + m_rows.size() + news.rows.size() + 1)};
    return nullptr;
}

// Without those whose rows have gone.
void LogRows::growSeen()
{
    std::vector<Seen> old;
    old.swap(m_seen);
    const auto isKept = [this](const Seen& each) { return each.row > m_removed; };
    m_seenCount = std::size_t(std::count_if(old.begin(), old.end(), isKept));
    std::size_t size = FirstSeen;
    while (size < 4 * (m_seenCount + 1))
        size *= 2;
    m_seen.assign(size, Seen{0, 0});
    for (const Seen& each : old) {
        if (!isKept(each))
            continue;
        std::size_t i = each.hash & (size - 1);
        while (m_seen[i].row != 0)
            i = (i + 1) & (size - 1);
        m_seen[i] = each;
    }
}

void LogRows::add(const std::vector<LogRow>& rows)
{
    m_rows.insert(m_rows.end(), rows.begin(), rows.end());
}

} // namespace profiler
