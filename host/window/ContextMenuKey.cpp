// SPDX-License-Identifier: MIT
#include "window/ContextMenuKey.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QShortcut>
#include <QWindow>

namespace scopix
{

void addContextMenuKey(QWidget& window)
{
    auto* key = new QShortcut(Qt::SHIFT + Qt::Key_F10, &window);
    key->setContext(Qt::ApplicationShortcut);
    key->setAutoRepeat(false);
    QObject::connect(key, &QShortcut::activated, &window, [] {
        QContextMenuEvent event(QContextMenuEvent::Keyboard,
                                {}); // Qt's windows find who has the focus, and where
        if (QWindow* active = QGuiApplication::focusWindow())
            QCoreApplication::sendEvent(active, &event);
    });
}

} // namespace scopix
