// SPDX-License-Identifier: MIT
#pragma once

#include "console/LogLine.h"
#include "console/TextFinder.h"

#include <QString>

namespace profiler
{

/// A set of lines of a chunk, from its first.
using LogBits = std::vector<char>;

/// Which lines are wanted. In its text, words that have to be there and, with a "-", words that must not; a
/// text in quotation marks may hold blanks. Upper and lower case are the same. A plain value.
class LogFilter
{
public:
    LogFilter() = default;
    explicit LogFilter(const QString& text);

    void setKind(LogKind kind, bool isWanted);
    bool hasKind(LogKind kind) const { return m_kinds >> int(kind) & 1u; }
    bool wantsAll() const { return m_with.empty() && m_without.empty() && m_kinds == AllKinds; }
    bool operator==(const LogFilter& other) const
    {
        return m_with == other.m_with && m_without == other.m_without && m_kinds == other.m_kinds;
    }

    /// The wanted ones among the lines from this one on; bits before are not touched.
    void apply(const LogChunk& chunk, std::size_t first, LogBits& bits) const;

    /// Sets the bits of the lines that hold the text.
    static void mark(const LogChunk& chunk, std::size_t first, const TextFinder& text, LogBits& bits);

private:
    static constexpr unsigned AllKinds = (1u << LogKinds) - 1;

    std::vector<TextFinder> m_with;
    std::vector<TextFinder> m_without;
    unsigned m_kinds = AllKinds;
};

} // namespace profiler
