// SPDX-License-Identifier: MIT
#include "console/LogFind.h"

#include "console/LogModel.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace profiler
{

namespace
{

constexpr qint64 TurnMilliseconds = 8;

} // namespace

LogFind::LogFind(LogModel& model, QObject* parent)
    : QObject(parent)
    , m_model(model)
{
    m_work.setInterval(0);
    connect(&m_work, &QTimer::timeout, this, &LogFind::work);
    connect(&model, &LogModel::modelReset, this, &LogFind::restart);
    connect(&model, &LogModel::rowsRemoved, this, &LogFind::forgetGone);
    connect(&model, &LogModel::rowsInserted, this, [this] {
        if (!m_text.isEmpty())
            m_work.start();
    });
}

void LogFind::setText(const QString& text)
{
    const TextFinder wanted(text.toStdString());
    if (wanted == m_text)
        return;
    m_text = wanted;
    m_isWanted = false;
    restart();
}

void LogFind::restart()
{
    m_hits.clear();
    m_next = 0;
    if (m_text.isEmpty())
        m_work.stop();
    else
        m_work.start();
    emit changed();
}

void LogFind::forgetGone()
{
    const std::uint64_t first = m_model.getStore().firstToKeep();
    m_hits.erase(m_hits.begin(), std::lower_bound(m_hits.begin(), m_hits.end(), first));
}

void LogFind::work()
{
    const LogRows& rows = m_model.getRows();
    QElapsedTimer clock;
    clock.start();
    while (rows.lowerBound(m_next) < rows.size() && clock.elapsed() < TurnMilliseconds)
        workOnce();
    if (rows.lowerBound(m_next) >= rows.size()) {
        m_work.stop();
        if (std::exchange(m_isWanted, false))
            jump();
    }
    emit changed();
}

// The rows of one chunk.
void LogFind::workOnce()
{
    const LogRows& rows = m_model.getRows();
    int row = rows.lowerBound(m_next);
    const std::uint64_t first = rows[row].line;
    const LogStore::Place place = m_model.getStore().find(first);
    LogBits bits(place.chunk->size());
    LogFilter::mark(*place.chunk, place.line, m_text, bits);
    for (; row < rows.size(); ++row) {
        const std::size_t line = place.line + std::size_t(rows[row].line - first);
        if (line >= bits.size())
            break;
        if (bits[line])
            m_hits.push_back(rows[row].line);
        m_next = rows[row].line + 1;
    }
}

int LogFind::numberOf(int row) const
{
    if (row < 0 || row >= m_model.getRows().size())
        return 0;
    const std::uint64_t line = m_model.getRows()[row].line;
    const auto hit = std::lower_bound(m_hits.begin(), m_hits.end(), line);
    return hit != m_hits.end() && *hit == line ? int(hit - m_hits.begin()) + 1 : 0;
}

void LogFind::goOnFrom(int row, bool forward)
{
    const LogRows& rows = m_model.getRows();
    const bool isRow = row >= 0 && row < rows.size();
    m_from = isRow ? rows[row].line : row < 0 ? 0 : m_model.getStore().end();
    m_isForward = forward;
    m_isWanted = !isDone();
    if (!m_isWanted)
        jump();
}

void LogFind::jump()
{
    if (m_hits.empty())
        return;
    auto hit = std::lower_bound(m_hits.begin(), m_hits.end(), m_from);
    if (m_isForward)
        hit = hit == m_hits.end() ? m_hits.begin() : hit;
    else
        hit = std::prev(hit == m_hits.begin() ? m_hits.end() : hit);
    emit found(m_model.getRows().lowerBound(*hit));
}

} // namespace profiler
