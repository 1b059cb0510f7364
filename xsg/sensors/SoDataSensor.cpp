// SPDX-License-Identifier: MIT
#include <xsg/sensors/SoDataSensor.h>

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/sensors/SoFieldSensor.h>
#include <xsg/sensors/SoNodeSensor.h>
#include <xsg/sensors/SoSensorQueue.h>

#include <algorithm>
#include <utility>

namespace
{

void eraseFrom(std::vector<SoDataSensor*>& sensors, SoDataSensor* sensor)
{
    sensors.erase(std::remove(sensors.begin(), sensors.end(), sensor), sensors.end());
}

} // namespace

void SoDataSensor::notified(const SoNotification& change)
{
    m_triggerField = change.field;
    m_structureTriggered |= !change.field;
    if (change.field)
        change.field->m_isTrigger = true;
    schedule();
}

void SoDataSensor::run()
{
    m_structureChanged = std::exchange(m_structureTriggered, false);
    SoSensor::run(); // may delete this sensor
}

void SoDataSensor::forgetTrigger()
{
    m_triggerField = nullptr;
    m_structureTriggered = false;
}

void SoDataSensor::forget(const SoField* field)
{
    SoSensorQueue::getInstance().forEachWaiting([field](SoSensor& sensor) {
        auto* data = dynamic_cast<SoDataSensor*>(&sensor);
        if (data && data->m_triggerField == field)
            data->m_triggerField = nullptr;
    });
}

void SoDataSensor::add(SoField* field, SoDataSensor* sensor)
{
    field->listeners().sensors.push_back(sensor);
}

void SoDataSensor::remove(SoField* field, SoDataSensor* sensor)
{
    eraseFrom(field->listeners().sensors, sensor);
}

void SoDataSensor::add(SoFieldContainer* container, SoDataSensor* sensor)
{
    if (!container->m_sensors)
        container->m_sensors = std::make_unique<std::vector<SoDataSensor*>>();
    container->m_sensors->push_back(sensor);
}

void SoDataSensor::remove(SoFieldContainer* container, SoDataSensor* sensor)
{
    eraseFrom(*container->m_sensors, sensor);
}

SoFieldSensor::~SoFieldSensor()
{
    detach();
}

void SoFieldSensor::attach(SoField* field)
{
    detach();
    m_field = field;
    if (field)
        add(field, this);
}

void SoFieldSensor::detach()
{
    unschedule();
    forgetTrigger();
    if (SoField* field = m_field) {
        m_field = nullptr;
        remove(field, this);
    }
}

SoNodeSensor::~SoNodeSensor()
{
    detach();
}

void SoNodeSensor::attach(SoFieldContainer* container)
{
    detach();
    m_container = container;
    if (container)
        add(container, this);
}

void SoNodeSensor::detach()
{
    unschedule();
    forgetTrigger();
    if (SoFieldContainer* container = m_container) {
        m_container = nullptr;
        remove(container, this);
    }
}
