// SPDX-License-Identifier: MIT
#pragma once

#include "table/CellEditor.h"

#include <optional>

class QKeyEvent;

namespace inspector
{

/// Where the keys lead in a table, as plain numbers.
struct TableKeys {
    int rowCount = 0;
    int columnCount = 0;
    int page = 1; // rows

    /// The cell that an arrow, a page or an end key leads to, perhaps beyond the table's edge; nothing for
    /// other keys.
    std::optional<TableCell> target(const QKeyEvent& event, TableCell from) const;
    /// How a key ends the present cell, as Enter and Tab do.
    static std::optional<CellEditor::End> endOf(const QKeyEvent& event);
    /// The cell after the present one; nothing where that leaves the table.
    std::optional<TableCell> next(TableCell from, CellEditor::End end) const;
    /// Whether the key is a character that begins to type into a cell.
    static bool isTyping(const QKeyEvent& event);
};

} // namespace inspector
