// SPDX-License-Identifier: MIT
#include "table/CellEditor.h"

#include <QKeyEvent>
#include <QStyle>

#include <optional>

namespace inspector
{

namespace
{

using End = CellEditor::End;

std::optional<End> endOf(const QKeyEvent& event)
{
    const bool isControl = event.modifiers() & Qt::ControlModifier;
    const bool isShift = event.modifiers() & Qt::ShiftModifier;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return isControl ? End::All : isShift ? End::Up : End::Down;
    case Qt::Key_Tab:
        return isControl ? End::Leave : End::Right;
    case Qt::Key_Backtab:
        return isControl ? End::Leave : End::Left;
    case Qt::Key_Escape:
        return End::Cancelled;
    default:
        return std::nullopt;
    }
}

} // namespace

CellEditor::CellEditor(TableCell cell, const QString& shownText, QWidget* parent)
    : QLineEdit(shownText, parent)
    , m_cell(cell)
    , m_shownText(shownText)
    , m_elsewhere(shownText)
{
    setFrame(false);
    setMaxLength(std::numeric_limits<int>::max());
    setTextMargins(1, 0, 1, 0);
}

void CellEditor::setElsewhere(const QString& text)
{
    if (text == m_elsewhere)
        return;
    m_elsewhere = text;
    const bool isOther = text != m_shownText;
    setToolTip(isOther ? tr("This cell is “%1” now. Enter writes what you typed, Esc keeps “%1”.").arg(text)
                       : QString());
    QPalette marked = parentWidget()->palette();
    if (isOther)
        marked.setColor(QPalette::Base, marked.color(QPalette::ToolTipBase));
    setPalette(marked);
}

// Tab would move the focus, and shortcuts of the window would take the rest.
bool CellEditor::event(QEvent* event)
{
    if (event->type() == QEvent::KeyPress && end(*static_cast<QKeyEvent*>(event)))
        return true;
    if (event->type() == QEvent::ShortcutOverride && endOf(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

bool CellEditor::end(const QKeyEvent& event)
{
    const std::optional<End> how = endOf(event);
    if (how)
        emit ended(*how);
    return how.has_value();
}

// No key is the table's while a cell is typed.
void CellEditor::keyPressEvent(QKeyEvent* event)
{
    QLineEdit::keyPressEvent(event);
    event->accept();
}

void CellEditor::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const bool isOwnPopup = event->reason() == Qt::PopupFocusReason;
    const bool isOtherWindow = event->reason() == Qt::ActiveWindowFocusReason;
    if (!isOwnPopup && !isOtherWindow)
        emit ended(End::FocusLost);
}

} // namespace inspector
