// SPDX-License-Identifier: MIT
#include "table/CellTyping.h"

#include "table/ListTableView.h"
#include "table/TablePainter.h"

#include <algorithm>

namespace inspector
{

CellTyping::CellTyping(ListTableView& view)
    : QObject(&view)
    , m_view(view)
{
}

void CellTyping::open(TableCell cell, const QString& typed)
{
    const TableRows& rows = m_view.rows();
    m_editor = new CellEditor(cell, rows.text(cell.row, cell.column), m_view.viewport());
    m_editor->setObjectName(QStringLiteral("cellEditor"));
    m_editor->setAccessibleName(
        tr("row %1, %2").arg(rows.elementOf(cell.row)).arg(rows.longHeading(cell.column)));
    connect(m_editor, &CellEditor::ended, this, &CellTyping::end);
    place();
    m_editor->show();
    m_editor->setFocus();
    m_editor->selectAll();
    if (!typed.isEmpty())
        m_editor->insert(typed);
    if (!typed.isEmpty())
        m_editor->setModified(true);
}

// A cell that is typed is as wide as its column, and wider where its text needs it.
void CellTyping::place()
{
    if (!m_editor)
        return;
    const QWidget& area = *m_view.viewport();
    QRect rect = m_view.geometry().cell(m_editor->cell()).adjusted(0, 0, -1, -1);
    const int wanted = m_view.fontMetrics().horizontalAdvance(TablePainter::oneLine(m_editor->text())) +
                       4 * TablePainter::margin(area) + 8;
    rect.setWidth(std::clamp(wanted, rect.width(), std::max(area.width() - rect.left(), rect.width())));
    const bool isSeen = m_view.geometry().cellsArea().intersects(rect);
    m_editor->setGeometry(isSeen ? rect
                                 : QRect(-2 * area.width(), 0, rect.width(), m_view.geometry().rowHeight));
}

void CellTyping::drop()
{
    if (!m_editor)
        return;
    CellEditor* editor = m_editor;
    m_editor = nullptr;
    const bool hadFocus = editor->hasFocus();
    editor->disconnect(this);
    editor->setModified(false);
    if (hadFocus)
        m_view.setFocus();
    editor->hide();
    editor->deleteLater();
}

void CellTyping::end(CellEditor::End end)
{
    const QPointer<CellEditor> editor = m_editor;
    if (!editor)
        return;
    const bool isDone = isTaken(end) || end == CellEditor::End::FocusLost;
    if (editor != m_editor || !isDone)
        return;
    drop();
    emit ended(end);
}

bool CellTyping::isTaken(CellEditor::End end)
{
    const bool isGivenUp = end == CellEditor::End::Cancelled;
    const bool isUnchanged = m_editor->text() == m_editor->shownText() && end != CellEditor::End::All;
    return isGivenUp || isUnchanged || !m_take || m_take(m_editor->cell(), m_editor->text(), end);
}

void CellTyping::follow()
{
    if (!m_editor)
        return;
    const TableCell cell = m_editor->cell();
    if (m_view.rows().isThere(cell.row)) {
        m_editor->setElsewhere(m_view.rows().text(cell.row, cell.column));
        return;
    }
    drop();
    emit dropped(tr("Row %1 was removed while you typed in it.").arg(cell.row));
}

} // namespace inspector
