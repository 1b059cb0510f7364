// SPDX-License-Identifier: MIT
#pragma once

#include "table/ListAccess.h"
#include "table/RowOrder.h"
#include "table/TableSelection.h"

#include <scopix/editing/SpxFieldPointer.h>

namespace inspector
{

/// The rows of a table: a list's values as cells, in the order in which they are shown. It reads the field's
/// own memory and keeps no copy. Rows and columns count from 0, and have to exist.
class TableRows
{
public:
    void show(SoMField* list);

    /// Null where none is shown, or once it was destroyed.
    SoMField* list() const { return static_cast<SoMField*>(m_list.get()); }
    const ListAccess& access() const { return *m_access; }

    int count() const;
    int columnCount() const { return m_headings.size(); }
    QString heading(int column) const { return m_headings[column]; }
    QString longHeading(int column) const { return m_longHeadings[column]; }

    const RowOrder& order() const { return m_order; }
    void setOrder(RowOrder order) { m_order = std::move(order); }
    /// Whether a row stands for an element that the list still has.
    bool isThere(int row) const;
    int elementOf(int row) const { return m_order.elementOf(row); }
    int rowOf(int element) const { return m_order.rowOf(element); }

    QString text(int row, int column) const;
    QString shortText(int row, int column, int digits) const;
    QColor swatch(int row) const;

    /// Bands of rows as bands of the list's elements, in ascending order.
    std::vector<RowBand> elementsOf(const std::vector<RowBand>& bands) const;

private:
    SpxFieldPointer m_list;
    const ListAccess* m_access = nullptr;
    QStringList m_headings;
    QStringList m_longHeadings;
    RowOrder m_order;
};

} // namespace inspector
