// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

namespace inspector
{

/// Blocks of cells as text, as spreadsheets exchange them: a line a row, the cells separated by a tab or a
/// comma; a cell that holds a separator, a quote or a line's end stands in double quotes, which are doubled
/// inside.
namespace BlockText
{

void appendCell(QString& out, const QString& cell, QChar separator);

using Rows = std::vector<QStringList>;

/// Reads such a text piece by piece, a row at a time; the line's end after the last one starts no further
/// row.
class Reader
{
public:
    /// `take` is called for each row; false ends the reading.
    Reader(QChar separator, std::function<bool(const QStringList& row)> take);

    /// False once a row was refused.
    bool feed(const QString& piece);
    /// What is left when the text ends.
    bool finish();
    /// Where the reading is, counting from 1.
    int line() const { return m_line; }

private:
    void feed(QChar c);
    void endCell();
    void endRow();

    QChar m_separator;
    std::function<bool(const QStringList&)> m_take;
    QStringList m_row;
    QString m_cell;
    int m_line = 1;
    bool m_isInQuotes = false;
    bool m_wasQuote = false;  // a quote inside quotes: the end, or the first of two
    bool m_wasReturn = false; // "\r", which "\n" may follow
    bool m_isStarted = false; // something of the row was read
    bool m_isRefused = false;
};

} // namespace BlockText

} // namespace inspector
