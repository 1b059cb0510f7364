// SPDX-License-Identifier: MIT
#include "support/OwnEvents.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace scopix
{

namespace
{

bool isHeldBack(QEvent::Type type)
{
    return type == QEvent::Timer || type == QEvent::SockAct || type == QEvent::DragEnter ||
           type == QEvent::DragMove || type == QEvent::Drop;
}

} // namespace

OwnEvents::OwnEvents(QWidget& dialog)
    : m_dialog(&dialog)
{
    QCoreApplication::instance()->installEventFilter(this);
}

OwnEvents::~OwnEvents() = default;

bool OwnEvents::isOwn(QObject* object) const
{
    while (object && object != m_dialog)
        object = object->parent();
    return object;
}

// Nothing is lost (decisions.md: standing-scene). Windows of the system paint by timers.
bool OwnEvents::eventFilter(QObject* watched, QEvent* event)
{
    return isHeldBack(event->type()) && !watched->isWindowType() && !isOwn(watched);
}

} // namespace scopix
