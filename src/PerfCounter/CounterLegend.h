// SPDX-License-Identifier: MIT
#pragma once

#include "CounterSampler.h"

#include <QColor>

class QTableWidget;

/// The legend: the counters' names in their colours, and what they are.
class CounterLegend
{
public:
    /// Neither is owned. `background` is what the names' colours are seen on in the curve view.
    CounterLegend(QTableWidget& table, const CounterSampler& sampler, QColor background);

    /// Keeps the selected counter selected, and reports the selection once, when all rows are complete.
    void show(const CounterSampler::Viewed& viewed);
    /// The selected row, or -1 unless exactly one is selected.
    int selectedRow() const;
    /// The last one first, so that they can be removed one after the other.
    QList<int> selectedRows() const;

private:
    void showRow(int row, const SoPerfCounterPcViewed& viewed);

    QTableWidget& m_table;
    const CounterSampler& m_sampler;
    QColor m_background;
};
