// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QVector>

class QHeaderView;
class QTableView;

/// Lets the columns of a table fill its width, whatever that is: a table without a horizontal scroll bar
/// hides what does not fit. Dragging the border between two columns moves that border; the shares found so
/// survive every resize.
class ProportionalColumns : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the table.
    explicit ProportionalColumns(QTableView* table);

    /// To be called when the table's room for its columns may have changed.
    void fit();

private:
    /// After the user made this column wider or narrower.
    void moveBorder(int column, int before, int now);

    QTableView* m_table;
    QHeaderView* m_header;
    QVector<double> m_shares; // of each column, in pixels of the width that they were chosen at
    bool m_fitting = false;
};
