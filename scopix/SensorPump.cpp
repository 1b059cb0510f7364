#include "SensorPump.h"

#include <xsg/sensors/SoSensorQueue.h>

#include <QCoreApplication>
#include <QEvent>

namespace
{

const QEvent::Type TurnType = static_cast<QEvent::Type>(QEvent::registerEventType());

} // namespace

SensorPump::SensorPump(QObject* parent)
    : QObject(parent)
{
    SoSensorQueue::getInstance().setWakeUp(wakeUp, this);
}

SensorPump::~SensorPump()
{
    SoSensorQueue::getInstance().setWakeUp(nullptr, nullptr);
}

bool SensorPump::event(QEvent* event)
{
    if (event->type() != TurnType)
        return QObject::event(event);
    SoSensorQueue::getInstance().process();
    return true;
}

void SensorPump::wakeUp(void* pump)
{
    QCoreApplication::postEvent(static_cast<SensorPump*>(pump), new QEvent(TurnType));
}
