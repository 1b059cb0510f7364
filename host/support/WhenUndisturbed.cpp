#include "support/WhenUndisturbed.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace
{

const QEvent::Type TurnType = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

WhenUndisturbed::WhenUndisturbed(std::function<void()> callback, QObject* parent)
    : QObject(parent)
    , m_callback(std::move(callback))
{
}

void WhenUndisturbed::request()
{
    if (m_requested)
        return;
    m_requested = true;
    post();
}

void WhenUndisturbed::runNow()
{
    if (!m_requested)
        return;
    cancel();
    m_callback();
}

void WhenUndisturbed::cancel()
{
    m_requested = false;
    waitForDialog(false);
    QCoreApplication::removePostedEvents(this, TurnType);
}

bool WhenUndisturbed::event(QEvent* event)
{
    if (event->type() != TurnType)
        return QObject::event(event);
    const bool disturbed = QApplication::activeModalWidget() != nullptr;
    waitForDialog(disturbed);
    if (!disturbed)
        runNow();
    return true;
}

bool WhenUndisturbed::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Hide && watched->isWidgetType() &&
        static_cast<QWidget*>(watched)->isWindow())
        post();
    return false;
}

void WhenUndisturbed::post()
{
    QCoreApplication::postEvent(this, new QEvent(TurnType));
}

void WhenUndisturbed::waitForDialog(bool wait)
{
    if (m_waits == wait)
        return;
    m_waits = wait;
    if (wait)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}
