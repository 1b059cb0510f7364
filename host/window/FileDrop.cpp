// SPDX-License-Identifier: MIT
#include "window/FileDrop.h"

#include <QChildEvent>
#include <QDockWidget>
#include <QMainWindow>

namespace scopix
{

namespace
{

bool isDrop(QEvent::Type type)
{
    return type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
}

void accept(QObject* child, QObject* filter)
{
    if (auto* dock = qobject_cast<QDockWidget*>(child)) {
        dock->setAcceptDrops(true);
        dock->installEventFilter(filter);
    }
}

} // namespace

FileDrop::FileDrop(QMainWindow& window)
    : QObject(&window)
    , m_window(window)
{
    for (auto* dock : window.findChildren<QDockWidget*>(QString(), Qt::FindDirectChildrenOnly))
        accept(dock, this);
    window.installEventFilter(this);
}

bool FileDrop::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_window) {
        if (event->type() == QEvent::ChildPolished)
            accept(static_cast<QChildEvent*>(event)->child(), this);
        return false;
    }
    if (!isDrop(event->type()))
        return false;
    // Not by the application, which would hand it to the dock again, as the target of the drag.
    static_cast<QObject&>(m_window).event(event);
    return true;
}

} // namespace scopix
