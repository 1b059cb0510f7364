// SPDX-License-Identifier: MIT
#include "EdPopupFrame.h"

#include <QApplication>
#include <QScreen>

#include <algorithm>

namespace
{

// One axis of placeBeside(): `at` is where the popup would begin, `button` and `popup` are lengths.
int placed(int at, int button, int popup, int begin, int end)
{
    if (at > end - popup - button)
        at -= popup + button;
    return std::max(begin, std::min(at, end - popup));
}

} // namespace

EdPopupFrame::EdPopupFrame(QWidget* parent)
    : QFrame(parent, Qt::Popup)
{
}

QRect EdPopupFrame::screenOf(const QRect& place, const QWidget& widget)
{
    const QScreen* screen = QGuiApplication::screenAt(place.center());
    return (screen ? screen : widget.screen())->availableGeometry();
}

QPoint EdPopupFrame::placeBeside(const QRect& button, const QSize& popup, const QRect& screen)
{
    const QPoint corner = button.bottomRight();
    return {
        placed(corner.x(), button.width(), popup.width(), screen.left(), screen.left() + screen.width()),
        placed(corner.y(), button.height(), popup.height(), screen.top(), screen.top() + screen.height())};
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
