// SPDX-License-Identifier: MIT
#pragma once

#include "console/LogFilter.h"
#include "console/LogStore.h"
#include "console/RowsByHash.h"

#include <deque>

namespace profiler
{

enum class LogFold { None, Runs, All };

/// A line that is shown, perhaps for equal ones too.
struct LogRow {
    std::uint64_t line;
    std::uint32_t count;
    bool isContext; // near a wanted line only
};

/// Which lines of a store are shown: those that a filter wants, with some lines around each, equal ones
/// folded into the first. Follows the store in pieces. Rows keep the order of their lines. Not for several
/// threads.
class LogRows
{
public:
    explicit LogRows(const LogStore& store)
        : m_store(store)
    {
    }

    struct Rule {
        LogFilter filter;
        LogFold fold = LogFold::Runs;
        int context = 0; // lines before and after
        bool operator==(const Rule& other) const
        {
            return filter == other.filter && fold == other.fold && context == other.context;
        }
    };
    const Rule& getRule() const { return m_rule; }
    /// Starts again.
    void setRule(const Rule& rule);

    int size() const { return int(m_rows.size()); }
    const LogRow& operator[](int row) const { return m_rows[std::size_t(row)]; }
    /// The first row whose line has this number or a higher one.
    int lowerBound(std::uint64_t line) const;

    bool isDone() const { return m_next >= m_store.end(); }
    /// Before the store forgets their lines.
    void removeFirst(int count);

    /// What follow() would add, and which rows it has counted up.
    struct News {
        std::vector<LogRow> rows;
        int firstCounted = -1;
        int lastCounted = -1;
    };
    /// Goes on with up to one chunk of the store.
    News follow();
    void add(const std::vector<LogRow>& rows);

private:
    void take(News& news, std::uint64_t line, const LogStore::Place& place);
    void pushBefore(News& news, std::uint64_t line);
    void push(News& news, std::uint64_t line, bool isContext);
    LogRow* findEqual(News& news, const LogStore::Place& place);
    LogRow* findSeen(News& news, const LogStore::Place& place);
    LogRow* lastRow(News& news);
    LogRow* rowAt(News& news, std::uint64_t row);
    void noteCounted(News& news, std::uint64_t row) const;
    std::uint64_t numRowsEver(const News& news) const;

    const LogStore& m_store;
    Rule m_rule;
    std::deque<LogRow> m_rows;
    std::uint64_t m_removed = 0;     // rows from the front, since the rule was set
    std::uint64_t m_next = 0;        // line
    std::uint64_t m_contextFrom = 0; // lines from this one on are not shown yet
    std::uint64_t m_contextTo = 0;   // up to here they are shown, being near the last wanted one
    std::uint32_t m_lastHash = 0;    // of the last row that is not context
    RowsByHash m_seen;               // rows counted from the first since the rule was set
};

} // namespace profiler
