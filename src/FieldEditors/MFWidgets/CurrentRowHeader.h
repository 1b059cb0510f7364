// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>

class QTableView;

/// The row numbers of a table, the current row's marked: without a selection nothing else shows which row it
/// is.
class CurrentRowHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit CurrentRowHeader(QTableView* table);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    const QTableView* m_table;
};
