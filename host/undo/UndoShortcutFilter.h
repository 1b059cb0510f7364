// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

class QKeyEvent;
class QUndoStack;
class QWidget;

namespace scopix
{

/// Gives Ctrl+Z and Ctrl+Shift+Z to the undo stack wherever the focus is in the window, its floating docks
/// and popups, except while the focused input holds typing that has not been applied: then the input
/// gets them. GUI thread only.
class UndoShortcutFilter : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this.
    UndoShortcutFilter(QUndoStack& stack, QWidget& window, QObject* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool concerns(const QWidget& widget) const;

    QUndoStack& m_stack;
    QWidget& m_window;
};

} // namespace scopix
