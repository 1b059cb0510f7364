// SPDX-License-Identifier: MIT
#include "SpxWatcher.h"

#include "FieldLife.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

SpxWatcher::SpxWatcher(QObject* parent)
    : QObject(parent)
    , m_fieldSensor(sensorCB, this)
    , m_nodeSensor(sensorCB, this)
{
}

SpxWatcher::~SpxWatcher() = default;

void SpxWatcher::watch(SoField* field)
{
    stop();
    if (!field)
        return;
    m_fieldSensor.attach(field);
    follow(FieldLife::of(*field));
}

void SpxWatcher::watch(SoFieldContainer* node)
{
    stop();
    if (!node)
        return;
    m_nodeSensor.attach(node);
    follow(FieldLife::of(*node));
}

void SpxWatcher::watch(SoTypedObject* object)
{
    if (auto* node = dynamic_cast<SoFieldContainer*>(object))
        watch(node);
    else
        watch(dynamic_cast<SoField*>(object));
}

void SpxWatcher::stop()
{
    m_fieldSensor.detach();
    m_nodeSensor.detach();
    if (m_life)
        m_life->disconnect(this);
    m_life.reset();
}

SoTypedObject* SpxWatcher::getObject() const
{
    if (!m_life || m_life->isOver())
        return nullptr;
    if (SoField* field = m_fieldSensor.getAttachedField())
        return field;
    return m_nodeSensor.getAttachedContainer();
}

void SpxWatcher::follow(std::shared_ptr<FieldLife> life)
{
    m_life = std::move(life);
    connect(m_life.get(), &FieldLife::over, this, &SpxWatcher::end);
}

void SpxWatcher::end()
{
    stop();
    emit objectDestroyed();
}

void SpxWatcher::sensorCB(void* watcher, SoSensor* /*sensor*/)
{
    emit static_cast<SpxWatcher*>(watcher)->changed();
}
