// SPDX-License-Identifier: MIT
#include "table/TableKeys.h"

#include <QKeyEvent>

#include <algorithm>

namespace inspector
{

std::optional<TableCell> TableKeys::target(const QKeyEvent& event, TableCell from) const
{
    const bool isControl = event.modifiers() & Qt::ControlModifier;
    const int last = rowCount - 1;
    const int lastColumn = columnCount - 1;
    if (event.modifiers() & Qt::AltModifier)
        return {};
    switch (event.key()) {
    case Qt::Key_Up:
        return TableCell{isControl ? 0 : from.row - 1, from.column};
    case Qt::Key_Down:
        return TableCell{isControl ? last : from.row + 1, from.column};
    case Qt::Key_Left:
        return TableCell{from.row, isControl ? 0 : from.column - 1};
    case Qt::Key_Right:
        return TableCell{from.row, isControl ? lastColumn : from.column + 1};
    case Qt::Key_PageUp:
        return TableCell{from.row - page, from.column};
    case Qt::Key_PageDown:
        return TableCell{int(std::min<std::int64_t>(std::int64_t(from.row) + page, last)), from.column};
    case Qt::Key_Home:
        return TableCell{isControl ? 0 : from.row, 0};
    case Qt::Key_End:
        return TableCell{isControl ? last : from.row, lastColumn};
    default:
        return {};
    }
}

std::optional<CellEditor::End> TableKeys::endOf(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return event.modifiers() & Qt::ShiftModifier ? CellEditor::End::Up : CellEditor::End::Down;
    case Qt::Key_Tab:
        return event.modifiers() & Qt::ControlModifier ? CellEditor::End::Leave : CellEditor::End::Right;
    case Qt::Key_Backtab:
        return CellEditor::End::Left;
    default:
        return {};
    }
}

std::optional<TableCell> TableKeys::next(TableCell from, CellEditor::End end) const
{
    switch (end) {
    case CellEditor::End::Down:
        return TableCell{from.row + 1, from.column};
    case CellEditor::End::Up:
        return TableCell{from.row - 1, from.column};
    case CellEditor::End::Right:
        if (from.column < columnCount - 1)
            return TableCell{from.row, from.column + 1};
        return from.row < rowCount - 1 ? std::optional(TableCell{from.row + 1, 0}) : std::nullopt;
    case CellEditor::End::Left:
        if (from.column > 0)
            return TableCell{from.row, from.column - 1};
        return from.row > 0 ? std::optional(TableCell{from.row - 1, columnCount - 1}) : std::nullopt;
    default:
        return {};
    }
}

bool TableKeys::isTyping(const QKeyEvent& event)
{
    const auto without = event.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
    return without == Qt::NoModifier && !event.text().isEmpty() && event.text().at(0).isPrint();
}

} // namespace inspector
