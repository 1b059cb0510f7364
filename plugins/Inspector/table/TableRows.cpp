// SPDX-License-Identifier: MIT
#include "table/TableRows.h"

#include <algorithm>

namespace inspector
{

void TableRows::show(SoMField* list)
{
    m_list = SpxFieldPointer(list);
    m_access = list ? ListAccess::of(*list) : nullptr;
    m_headings = m_access ? m_access->headings() : QStringList();
    m_longHeadings = m_access ? m_access->longHeadings() : QStringList();
    m_order = RowOrder();
}

int TableRows::count() const
{
    const SoMField* shown = list();
    return shown ? m_order.rowCount(shown->getNum()) : 0;
}

bool TableRows::isThere(int row) const
{
    const SoMField* shown = list();
    return shown && row >= 0 && row < m_order.rowCount(shown->getNum()) &&
           m_order.elementOf(row) < shown->getNum();
}

QString TableRows::text(int row, int column) const
{
    return m_access->text(*list(), elementOf(row), column);
}

QString TableRows::shortText(int row, int column, int digits) const
{
    return m_access->shortText(*list(), elementOf(row), column, digits);
}

QColor TableRows::swatch(int row) const
{
    return m_access->swatch(*list(), elementOf(row));
}

std::vector<RowBand> TableRows::elementsOf(const std::vector<RowBand>& bands) const
{
    if (m_order.isNatural())
        return bands;
    std::vector<RowBand> elements;
    for (const RowBand& band : bands) {
        for (int row = band.first; row <= band.last; ++row)
            elements.push_back({elementOf(row), elementOf(row), band.columns});
    }
    if (!m_order.isAscending())
        std::sort(elements.begin(), elements.end(),
                  [](const RowBand& a, const RowBand& b) { return a.first < b.first; });
    std::vector<RowBand> merged;
    for (const RowBand& one : elements) {
        if (!merged.empty() && merged.back().last + 1 == one.first && merged.back().columns == one.columns)
            merged.back().last = one.last;
        else
            merged.push_back(one);
    }
    return merged;
}

} // namespace inspector
