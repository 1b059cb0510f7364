// SPDX-License-Identifier: MIT
#include "undo/UndoShortcutFilter.h"

#include "undo/TextInput.h"

#include <QApplication>
#include <QKeyEvent>
#include <QUndoStack>
#include <QWidget>

namespace scopix
{

namespace
{

// True for an input that holds unapplied typing, and for the parents to which it passes the key up.
bool belongsToInput(const QWidget& widget)
{
    const QWidget* focus = QApplication::focusWidget();
    return TextInput::hasPendingEdit(&widget) ||
           (focus && widget.isAncestorOf(focus) && TextInput::hasPendingEdit(focus));
}

enum class UndoKey { None, Undo, Redo };

UndoKey undoKeyOf(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & ~Qt::KeypadModifier;
    if (event.key() != Qt::Key_Z)
        return UndoKey::None;
    if (held == Qt::ControlModifier)
        return UndoKey::Undo;
    return held == (Qt::ControlModifier | Qt::ShiftModifier) ? UndoKey::Redo : UndoKey::None;
}

} // namespace

UndoShortcutFilter::UndoShortcutFilter(QUndoStack& stack, QWidget& window, QObject* parent)
    : QObject(parent)
    , m_stack(stack)
    , m_window(window)
{
    qApp->installEventFilter(this);
}

bool UndoShortcutFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return false;
    const UndoKey key = undoKeyOf(*static_cast<QKeyEvent*>(event));
    if (key == UndoKey::None || !watched->isWidgetType())
        return false;
    const auto& widget = *static_cast<const QWidget*>(watched);
    if (!concerns(widget))
        return false;
    if (belongsToInput(widget)) {
        event->accept(); // before the menu's shortcut sees it
        return false;
    }
    event->accept();
    if (event->type() == QEvent::KeyPress)
        key == UndoKey::Undo ? m_stack.undo() : m_stack.redo();
    return true;
}

// The window itself and its descendants, unless a modal dialog blocks it.
bool UndoShortcutFilter::concerns(const QWidget& widget) const
{
    if (QApplication::activeModalWidget())
        return false;
    for (const QWidget* at = &widget; at; at = at->parentWidget()) {
        if (at == &m_window)
            return true;
    }
    return false;
}

} // namespace scopix
