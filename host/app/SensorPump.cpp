// SPDX-License-Identifier: MIT
#include "app/SensorPump.h"

#include <xsg/frames/SoFramePhase.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

const QEvent::Type TurnType = static_cast<QEvent::Type>(QEvent::registerEventType());

// A later moment is asked for again when this has passed.
constexpr double LongestWait = 3600000;

int milliseconds(double seconds)
{
    return static_cast<int>(std::clamp(std::ceil(seconds * 1000), 0.0, LongestWait));
}

} // namespace

SensorPump::SensorPump(QObject* parent)
    : QObject(parent)
{
    m_due.setSingleShot(true);
    m_due.setTimerType(Qt::PreciseTimer);
    connect(&m_due, &QTimer::timeout, this, &SensorPump::turn);
    if (SoSensorQueue::getInstance().hasWakeUp())
        return;
    SoSensorQueue::getInstance().setWakeUp(wakeUp, this);
    turn();
}

SensorPump::~SensorPump()
{
    if (SoSensorQueue::getInstance().hasWakeUp(wakeUp, this))
        SoSensorQueue::getInstance().setWakeUp(nullptr, nullptr);
}

bool SensorPump::event(QEvent* event)
{
    if (event->type() != TurnType)
        return QObject::event(event);
    turn();
    return true;
}

void SensorPump::turn()
{
    const SoFrameUpdate update(SoFrameLog::getInstance());
    SoSensorQueue& queue = SoSensorQueue::getInstance();
    queue.process();
    SbTime left;
    if (queue.getTimeToDeadline(left))
        m_due.start(milliseconds(left.getValue()));
}

void SensorPump::wakeUp(void* pump)
{
    QCoreApplication::postEvent(static_cast<SensorPump*>(pump), new QEvent(TurnType));
}

} // namespace scopix
