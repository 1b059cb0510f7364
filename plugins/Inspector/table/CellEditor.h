// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableSelection.h"

#include <QLineEdit>

namespace inspector
{

/// The line in which a cell of a table is typed. It decides nothing itself: it reports how the typing ended.
class CellEditor : public QLineEdit
{
    Q_OBJECT

public:
    enum class End { Down, Up, Right, Left, All, Leave, FocusLost, Cancelled };

    CellEditor(TableCell cell, const QString& shownText, QWidget* parent);

    TableCell cell() const { return m_cell; }
    /// What the cell showed when the typing began.
    const QString& shownText() const { return m_shownText; }
    /// The cell was changed by somebody else meanwhile: what is typed stays, and the line says so.
    void setElsewhere(const QString& text);

signals:
    void ended(inspector::CellEditor::End end);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool end(const QKeyEvent& event);

    const TableCell m_cell;
    const QString m_shownText;
    QString m_elsewhere;
};

} // namespace inspector
