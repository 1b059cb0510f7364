// SPDX-License-Identifier: MIT
#include "ProportionalColumns.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QTableView>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{

// A few digits; the toolkit's own least width would not let four columns into a narrow dock.
constexpr int LeastWidth = 24;

} // namespace

ProportionalColumns::ProportionalColumns(QTableView* table)
    : QObject(table)
    , m_table(table)
    , m_header(table->horizontalHeader())
{
    m_header->setMinimumSectionSize(LeastWidth);
    connect(m_header, &QHeaderView::sectionCountChanged, this, &ProportionalColumns::fit);
    connect(m_header, &QHeaderView::sectionResized, this, &ProportionalColumns::moveBorder);
}

void ProportionalColumns::moveBorder(int column, int before, int now)
{
    if (m_fitting)
        return;
    const int next = column + 1;
    if (next < m_header->count()) {
        const int most = m_header->sectionSize(next) - LeastWidth;
        const int moved = std::min(now - before, std::max(most, 0));
        m_shares.resize(m_header->count());
        for (int i = 0; i < m_shares.size(); ++i)
            m_shares[i] = m_header->sectionSize(i);
        m_shares[column] = before + moved;
        m_shares[next] -= moved;
    }
    fit();
}

void ProportionalColumns::fit()
{
    // While the table is destroyed, its header still reports the removal of its columns.
    if (!qobject_cast<QTableView*>(m_header->parentWidget()))
        return;
    const int columns = m_header->count();
    if (m_shares.size() != columns)
        m_shares.fill(1, columns);
    const QScopedValueRollback<bool> fitting(m_fitting, true);
    const double all = std::accumulate(m_shares.cbegin(), m_shares.cend(), 0.0);
    const int width = m_table->viewport()->width();
    double share = 0;
    int taken = 0;
    for (int i = 0; i < columns; ++i) {
        share += m_shares[i];
        const int size = int(std::lround(width * share / all)) - taken;
        m_header->resizeSection(i, size);
        taken += m_header->sectionSize(i);
    }
}
