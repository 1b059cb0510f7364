// SPDX-License-Identifier: MIT
#include "CounterLegend.h"

#include "CounterTable.h"
#include "CounterText.h"
#include "SoPerfCounterPcViewed.h"

#include <xsg/counters/SoPerfCounter.h>

#include <QCoreApplication>
#include <QSignalBlocker>
#include <QTableWidget>

#include <algorithm>

CounterLegend::CounterLegend(QTableWidget& table, const CounterSampler& sampler, QColor background)
    : m_table(table)
    , m_sampler(sampler)
    , m_background(background)
{
    counterTable::showBeginnings(table);
}

void CounterLegend::show(const CounterSampler::Viewed& viewed)
{
    const int selectedBefore = selectedRow();
    const QString selected = selectedBefore < 0 ? QString() : m_table.item(selectedBefore, 0)->text();
    QSignalBlocker quiet(m_table);
    m_table.setRowCount(viewed.size());
    m_table.clearSelection();
    for (int row = 0; row < viewed.size(); ++row) {
        showRow(row, *viewed.at(row));
        if (viewed.at(row)->getName() == selected)
            m_table.selectRow(row);
    }
    counterTable::fitColumns(m_table);
    quiet.unblock();
    emit m_table.itemSelectionChanged();
}

void CounterLegend::showRow(int row, const SoPerfCounterPcViewed& viewed)
{
    const SoPerfCounter* counter = m_sampler.counterOf(viewed);
    counterTable::setText(m_table, row, 0, viewed.getName());
    m_table.item(row, 0)->setForeground(viewed.getColor());
    m_table.item(row, 0)->setBackground(m_background); // as readable as the curve
    const QString none = QCoreApplication::translate("SoPerfCounterViewer", "No such counter");
    const QString texts[] = {
        counter ? SpxText::toQString(counter->getTypeText()) : QString(),
        counter ? SpxText::toQString(counter->getStringLevel()) : QString(),
        counter ? beginningOf(counter->getModule()) : QString(),
        counter ? beginningOf(counter->getDescription()) : none,
    };
    int column = 1;
    for (const QString& text : texts)
        counterTable::setText(m_table, row, column++, text);
}

int CounterLegend::selectedRow() const
{
    const QList<int> rows = selectedRows();
    return rows.size() == 1 ? rows.first() : -1;
}

QList<int> CounterLegend::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex& index : m_table.selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end(), std::greater<>());
    return rows;
}
