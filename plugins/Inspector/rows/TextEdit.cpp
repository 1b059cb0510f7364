// SPDX-License-Identifier: MIT
#include "rows/TextEdit.h"

#include <QKeyEvent>

namespace inspector
{

bool TextEdit::event(QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (!isKey || !isModified() || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape)
        return QLineEdit::event(event);
    if (event->type() == QEvent::KeyPress)
        m_giveBack();
    event->accept();
    return true;
}

} // namespace inspector
