// SPDX-License-Identifier: MIT
#pragma once

#include "table/CellEditor.h"

#include <QObject>
#include <QPointer>

#include <functional>

namespace inspector
{

class ListTableView;

/// The typing into one cell of a table: opens the line over the cell, keeps it in its place, and hands over
/// what was typed. Lives in its view.
class CellTyping : public QObject
{
    Q_OBJECT

public:
    explicit CellTyping(ListTableView& view);

    /// What is done with the text; false keeps the cell open. Not called for typing that was given up or that
    /// ended as it began.
    using Take = std::function<bool(TableCell cell, const QString& text, CellEditor::End end)>;
    void setTake(Take take) { m_take = std::move(take); }
    /// Null while nothing is typed.
    CellEditor* editor() const { return m_editor; }

    /// `typed` replaces what the cell shows.
    void open(TableCell cell, const QString& typed);
    void end(CellEditor::End end);
    /// Without a report.
    void drop();
    /// The view was scrolled or laid out anew.
    void place();
    /// The list changed.
    void follow();

signals:
    /// Where to go on from the cell.
    void ended(inspector::CellEditor::End end);
    void dropped(const QString& why);

private:
    bool isTaken(CellEditor::End end);

    ListTableView& m_view;
    Take m_take;
    QPointer<CellEditor> m_editor;
};

} // namespace inspector
