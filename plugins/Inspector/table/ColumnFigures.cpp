// SPDX-License-Identifier: MIT
#include "table/ColumnFigures.h"

#include <algorithm>
#include <cmath>

namespace inspector
{

void ColumnFigures::add(double number)
{
    if (std::isnan(number)) {
        ++nanCount;
        return;
    }
    least = std::min(least, number);
    greatest = std::max(greatest, number);
    sum += number;
    ++count;
}

FiguresRun::FiguresRun(const ListAccess& access, std::vector<RowBand> elements)
    : m_access(access)
    , m_bands(std::move(elements))
    , m_columns(std::size_t(access.columnCount()))
{
}

bool FiguresRun::step(const SoMField& list, int cells)
{
    while (m_band < m_bands.size() && cells > 0) {
        const RowBand& band = m_bands[m_band];
        if (band.last >= list.getNum())
            return true; // the list became shorter; who asks is told of that too
        const int rows = int(std::min<std::int64_t>(band.rowCount() - m_row, cells));
        if (band.has(m_column) && rows > 0) {
            m_numbers.resize(std::size_t(rows));
            m_access.readNumbers(list, band.first + m_row, m_column, rows, m_numbers.data());
            for (const double number : m_numbers)
                m_columns[std::size_t(m_column)].add(number);
            cells -= rows;
            m_row += rows;
        }
        if (band.has(m_column) && m_row < band.rowCount())
            continue;
        m_row = 0;
        if (++m_column == int(m_columns.size())) {
            m_column = 0;
            ++m_band;
        }
    }
    return m_band == m_bands.size();
}

ColumnFigures FiguresRun::all() const
{
    ColumnFigures all;
    for (const ColumnFigures& column : m_columns) {
        all.least = std::min(all.least, column.least);
        all.greatest = std::max(all.greatest, column.greatest);
        all.count += column.count;
        all.nanCount += column.nanCount;
        all.sum += column.sum;
    }
    return all;
}

} // namespace inspector
