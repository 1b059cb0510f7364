// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>

class QTableView;

/// The row numbers or the captions of a table, with the mark of the current row or column: without a
/// selection nothing else shows which cell it is.
class CurrentCellHeader : public QHeaderView
{
    Q_OBJECT

public:
    CurrentCellHeader(Qt::Orientation orientation, QTableView* table);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;

private:
    const QTableView* m_table;
};
