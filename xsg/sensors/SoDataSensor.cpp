// SPDX-License-Identifier: MIT
#include <xsg/sensors/SoDataSensor.h>

#include <xsg/core/Context.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/sensors/SoNodeSensor.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <utility>

void SoDataSensor::changed(const SoNotification& change)
{
    m_triggerField = change.field;
    m_structureTriggered |= !change.field;
    if (change.field)
        change.field->markAsTrigger();
    schedule();
}

void SoDataSensor::run()
{
    m_structureChanged = std::exchange(m_structureTriggered, false);
    SoSensor::run(); // may delete this sensor
}

void SoDataSensor::forgetTrigger(const SoField* field)
{
    SoSensorQueue::getInstance().forEachWaiting([field](SoSensor& sensor) {
        auto* data = dynamic_cast<SoDataSensor*>(&sensor);
        if (data && data->m_triggerField == field)
            data->m_triggerField = nullptr;
    });
}

template <class Subject>
void SoDataSensor::listenTo(Subject* subject)
{
    xsg::Context::get().triggerDestroyed = forgetTrigger;
    if (subject)
        subject->addListener(this);
}

template <class Subject>
void SoDataSensor::stopListeningTo(Subject*& subject)
{
    unschedule();
    m_triggerField = nullptr;
    m_structureTriggered = false;
    if (Subject* former = std::exchange(subject, nullptr))
        former->removeListener(this);
}

SoFieldSensor::~SoFieldSensor()
{
    detach();
}

void SoFieldSensor::attach(SoField* field)
{
    detach();
    m_field = field;
    listenTo(field);
}

void SoFieldSensor::detach()
{
    stopListeningTo(m_field);
}

SoNodeSensor::~SoNodeSensor()
{
    detach();
}

void SoNodeSensor::attach(SoFieldContainer* container)
{
    detach();
    m_container = container;
    listenTo(container);
}

void SoNodeSensor::detach()
{
    stopListeningTo(m_container);
}
