// SPDX-License-Identifier: MIT
#pragma once

#include "table/PieceSort.h"
#include "table/TableSession.h"

#include <functional>

namespace inspector
{

/// Sorting, filtering and finding in a table. Long ones are done in pieces, and can be cancelled.
class TableOrder : public QObject
{
    Q_OBJECT

public:
    explicit TableOrder(TableSession& session);

    /// Of the view, by the current column; the list stays as it is.
    void sort(bool isDescending);
    /// Of the values: the selected rows where there are several, otherwise all, as a step.
    void sortValues(bool isDescending);
    /// Only the rows for which the condition holds; an empty one shows all.
    bool filter(const QString& condition);
    /// Only the rows whose value is there more than once.
    void showDuplicates();
    /// All rows in the list's own order.
    void showAll();
    /// The same again, after the list was changed.
    void reapply();

    /// From behind the current cell, around the end.
    bool find(const QString& text);
    bool findAgain() { return find(m_sought); }
    bool goToRow(const QString& text);

signals:
    void orderChanged();

private:
    void sortBy(int column, bool isDescending);
    bool sorted(std::vector<int>& elements, const PieceSort::Less& less, const QString& what);
    PieceSort::Less lessOf(int column, bool isDescending, std::vector<double>& keys);
    bool collect(const QString& what, const std::function<bool(int)>& isShown, std::vector<int>& elements);
    void apply(RowOrder order, int column = -1, bool isDescending = false);
    bool isFound(int row, int column, const double* number) const;

    TableSession& m_session;
    std::function<void()> m_last;
    QString m_sought;
};

} // namespace inspector
