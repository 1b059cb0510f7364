// SPDX-License-Identifier: MIT
#pragma once

#include "table/ColumnFigures.h"

#include <QLabel>
#include <QTimer>

#include <memory>

namespace inspector
{

class TableSession;

/// Says what is selected: how many cells, and of numbers the least, the greatest, the mean and how many are
/// no numbers, for each column. Calculated in pieces while nothing else is to be done.
class FiguresLine : public QLabel
{
    Q_OBJECT

public:
    explicit FiguresLine(TableSession& session, QWidget* parent = nullptr);

    /// What is selected, or the list, is another.
    void restart();
    bool isBusy() const { return m_timer.isActive() || m_delay.isActive(); }

private:
    void begin();
    void goOn();
    void showFigures();
    QString textOf(const ColumnFigures& figures) const;

    TableSession& m_session;
    QTimer m_delay;
    QTimer m_timer;
    std::unique_ptr<FiguresRun> m_run;
    qint64 m_cells = 0;
    bool m_isOfAll = false;
};

} // namespace inspector
