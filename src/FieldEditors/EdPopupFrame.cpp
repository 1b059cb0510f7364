// SPDX-License-Identifier: MIT
#include "EdPopupFrame.h"

#include <QApplication>

EdPopupFrame::EdPopupFrame(QWidget* parent)
    : QFrame(parent, Qt::Popup)
{
}

void EdPopupFrame::setVisible(bool visible)
{
    if (visible && !isVisible())
        m_focusedBefore = QApplication::focusWidget();
    const bool isClosing = !visible && isVisible();
    QFrame::setVisible(visible);
    if (isClosing && m_focusedBefore && m_focusedBefore->isVisible())
        m_focusedBefore->setFocus(Qt::PopupFocusReason);
}
