// SPDX-License-Identifier: MIT
#pragma once

#include "table/TableSession.h"

namespace inspector
{

/// What the user does to the cells and rows of a table, except by clipboard and files. Each is one step.
class TableEdits : public QObject
{
    Q_OBJECT

public:
    explicit TableEdits(TableSession& session);

    /// False where the text is no value.
    bool takeTyped(TableCell cell, const QString& text, CellEditor::End end);
    /// A formula, or for lists of texts a text, for every selected cell.
    bool calculate(const QString& text);

    void clearCells();
    void fillDown();
    /// Continues what the first two selected rows begin.
    void fillSeries();
    void toggle();
    /// One of the names, the bits or a colour, for the selected rows.
    void choose();
    /// Selects the node that the current cell refers to, where the host offers that.
    void followLink();

    /// The whole list, as in a new node.
    void resetToDefault();
    void toggleIgnored();

    void insertRow();
    void appendRow();
    void duplicateRows();
    void deleteRows();
    void moveUp() { moveBy(-1); }
    void moveDown() { moveBy(1); }
    void moveTo(int gap);

private:
    bool write(const std::vector<RowBand>& bands, const ListWriter::WriteCell& cell);
    bool setText(SoMField& values, int at, int element, int column, const QString& text) const;
    void sayNoValue(const QString& text);
    void selectElements(int first, int count);
    void moveBy(int rows);
    bool isOrdered();

    void chooseName();
    void chooseFlags();
    void chooseColor();
    QPoint menuPlace() const;

    TableSession& m_session;
};

} // namespace inspector
