// SPDX-License-Identifier: MIT
#include "support/DeferredUntilNonModal.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace scopix
{

namespace
{

const QEvent::Type TurnType = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

DeferredUntilNonModal::DeferredUntilNonModal(std::function<void()> callback, QObject* parent)
    : QObject(parent)
    , m_callback(std::move(callback))
{
}

void DeferredUntilNonModal::request()
{
    if (m_requested)
        return;
    m_requested = true;
    post();
}

void DeferredUntilNonModal::runNow()
{
    if (!m_requested)
        return;
    cancel();
    m_callback();
}

void DeferredUntilNonModal::cancel()
{
    m_requested = false;
    waitForDialog(false);
    QCoreApplication::removePostedEvents(this, TurnType);
}

bool DeferredUntilNonModal::event(QEvent* event)
{
    if (event->type() != TurnType)
        return QObject::event(event);
    const bool disturbed = QApplication::activeModalWidget() != nullptr;
    waitForDialog(disturbed);
    if (!disturbed)
        runNow();
    return true;
}

bool DeferredUntilNonModal::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->isWindow())
        post();
    return false;
}

void DeferredUntilNonModal::post()
{
    QCoreApplication::postEvent(this, new QEvent(TurnType));
}

void DeferredUntilNonModal::waitForDialog(bool wait)
{
    if (m_waits == wait)
        return;
    m_waits = wait;
    if (wait)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

} // namespace scopix
