// SPDX-License-Identifier: MIT
#include "table/BlockText.h"

#include <utility>

namespace inspector
{

void BlockText::appendCell(QString& out, const QString& cell, QChar separator)
{
    const bool isPlain =
        !cell.contains(separator) && !cell.contains('"') && !cell.contains('\n') && !cell.contains('\r');
    if (isPlain)
        out += cell;
    else
        out += '"' + QString(cell).replace('"', QLatin1String("\"\"")) + '"';
}

BlockText::Reader::Reader(QChar separator, std::function<bool(const QStringList&)> take)
    : m_separator(separator)
    , m_take(std::move(take))
{
}

bool BlockText::Reader::feed(const QString& piece)
{
    for (const QChar c : piece) {
        if (m_isRefused)
            break;
        feed(c);
    }
    return !m_isRefused;
}

void BlockText::Reader::feed(QChar c)
{
    const bool endsPair = std::exchange(m_wasReturn, c == '\r' && (!m_isInQuotes || m_wasQuote)) && c == '\n';
    if (endsPair)
        return;
    if (m_isInQuotes && !m_wasQuote) {
        if (c == '"')
            m_wasQuote = true;
        else
            m_cell += c;
        return;
    }
    if (std::exchange(m_wasQuote, false)) {
        if (c == '"') {
            m_cell += c;
            return;
        }
        m_isInQuotes = false;
    }
    if (c == '\n' || c == '\r') {
        endRow();
        return;
    }
    m_isStarted = true;
    if (c == m_separator)
        endCell();
    else if (c == '"' && m_cell.isEmpty())
        m_isInQuotes = true;
    else
        m_cell += c;
}

void BlockText::Reader::endCell()
{
    m_row.append(std::exchange(m_cell, QString()));
}

void BlockText::Reader::endRow()
{
    endCell();
    m_isStarted = m_isInQuotes = m_wasQuote = false;
    if (!m_take(std::exchange(m_row, {})))
        m_isRefused = true;
    else
        ++m_line;
}

bool BlockText::Reader::finish()
{
    if (m_isStarted && !m_isRefused)
        endRow();
    return !m_isRefused;
}

} // namespace inspector
