// SPDX-License-Identifier: MIT
#pragma once

#include "table/ListAccess.h"
#include "table/TableSelection.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace inspector
{

/// What is said of the numbers of a column. NaN counts apart and goes into no other figure.
struct ColumnFigures {
    double least = std::numeric_limits<double>::infinity();
    double greatest = -std::numeric_limits<double>::infinity();
    std::int64_t count = 0;
    std::int64_t nanCount = 0;
    long double sum = 0;

    void add(double number);
    double mean() const { return count ? double(sum / count) : std::numeric_limits<double>::quiet_NaN(); }
};

/// Calculates the figures of selected cells, a piece at a time.
class FiguresRun
{
public:
    FiguresRun(const ListAccess& access, std::vector<RowBand> elements);

    /// Goes on by at most `cells`; true when all is done.
    bool step(const SoMField& list, int cells);
    const std::vector<ColumnFigures>& columns() const { return m_columns; }
    /// All columns together.
    ColumnFigures all() const;

private:
    const ListAccess& m_access;
    std::vector<RowBand> m_bands;
    std::vector<ColumnFigures> m_columns;
    std::vector<double> m_numbers;
    std::size_t m_band = 0;
    int m_column = 0;
    int m_row = 0; // in the band
};

} // namespace inspector
