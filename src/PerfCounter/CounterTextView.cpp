// SPDX-License-Identifier: MIT
#include "CounterTextView.h"

#include "CounterTable.h"
#include "CounterText.h"
#include "SampleText.h"
#include "SoPerfCounterPcViewed.h"

#include <xsg/counters/SoPerfCounter.h>

#include <QTableWidget>

CounterTextView::CounterTextView(QTableWidget& table, const CounterSampler& sampler)
    : m_table(table)
    , m_sampler(sampler)
{
    counterTable::showBeginnings(table);
}

void CounterTextView::show(const CounterSampler::Viewed& viewed)
{
    m_table.setRowCount(viewed.size());
    for (int row = 0; row < viewed.size(); ++row) {
        const SoPerfCounter* counter = m_sampler.counterOf(*viewed.at(row));
        counterTable::setText(m_table, row, 0, viewed.at(row)->getName());
        const double newest = viewed.at(row)->getHistory()[0];
        counterTable::setText(m_table, row, 1, numberText(newest));
        m_table.item(row, 1)->setToolTip(undividedText(newest, m_sampler.newestPeriod()));
        counterTable::setText(m_table, row, 2,
                              QStringLiteral("x ") + numberText(counter ? counter->getScaleFactor() : 1));
    }
    m_table.resizeColumnsToContents();
}
