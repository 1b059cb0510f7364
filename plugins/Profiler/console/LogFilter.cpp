// SPDX-License-Identifier: MIT
#include "console/LogFilter.h"

namespace profiler
{

namespace
{

struct Word {
    QString text;
    bool isUnwanted = false;
};

// At the start of rest, which loses it.
Word takeWord(QString& rest)
{
    Word word;
    word.isUnwanted = rest.size() > 1 && rest.startsWith(QLatin1Char('-'));
    if (word.isUnwanted)
        rest.remove(0, 1);
    const bool isQuoted = rest.startsWith(QLatin1Char('"'));
    if (isQuoted)
        rest.remove(0, 1);
    const int end = rest.indexOf(QLatin1Char(isQuoted ? '"' : ' '));
    word.text = rest.left(end);
    rest = end < 0 ? QString() : rest.mid(end + 1);
    return word;
}

} // namespace

LogFilter::LogFilter(const QString& text)
{
    for (QString rest = text.simplified(); !rest.isEmpty(); rest = rest.trimmed()) {
        const Word word = takeWord(rest);
        if (!word.text.isEmpty())
            (word.isUnwanted ? m_without : m_with).emplace_back(word.text.toStdString());
    }
}

void LogFilter::setKind(LogKind kind, bool isWanted)
{
    const unsigned bit = 1u << int(kind);
    m_kinds = isWanted ? m_kinds | bit : m_kinds & ~bit;
}

void LogFilter::mark(const LogChunk& chunk, std::size_t first, const TextFinder& text, LogBits& bits)
{
    const std::string& all = chunk.allText();
    std::size_t line = first;
    std::size_t from = all.size() - chunk.textFrom(first).size();
    for (std::size_t at = text.find(all, from); at != all.npos; at = text.find(all, from)) {
        while (line + 1 < chunk.size() && chunk.line(line + 1).start <= at)
            ++line;
        bits[line] = true;
        from = chunk.line(line).start + chunk.line(line).length + 1;
    }
}

void LogFilter::apply(const LogChunk& chunk, std::size_t first, LogBits& bits) const
{
    bits.resize(chunk.size());
    for (std::size_t i = first; i < chunk.size(); ++i)
        bits[i] = m_kinds == AllKinds || hasKind(chunk.line(i).kind);
    LogBits found;
    const auto combine = [&](const TextFinder& word, bool isWanted) {
        found.assign(chunk.size(), false);
        mark(chunk, first, word, found);
        for (std::size_t i = first; i < chunk.size(); ++i)
            bits[i] = bits[i] && bool(found[i]) == isWanted;
    };
    for (const TextFinder& word : m_with)
        combine(word, true);
    for (const TextFinder& word : m_without)
        combine(word, false);
}

} // namespace profiler
