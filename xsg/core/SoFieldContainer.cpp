// SPDX-License-Identifier: MIT
#include <xsg/core/SoFieldContainer.h>

#include <xsg/core/ContainerNames.h>
#include <xsg/core/SoField.h>
#include <xsg/sensors/SoDataSensor.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>

template class SoTyped<SoFieldContainer, SoTypedObject>;

namespace
{

struct DyingListener {
    SoFieldContainer::DyingCallback callback;
    void* data;
};

std::vector<DyingListener>& dyingListeners()
{
    static auto& listeners = *new std::vector<DyingListener>;
    return listeners;
}

} // namespace

SoFieldContainer::~SoFieldContainer()
{
    if (m_listed)
        xsg::ContainerNames::get().remove(this);
    while (hasSensors())
        m_sensors->back()->detach();
}

void SoFieldContainer::unref() const
{
    if (--m_refCount <= 0 && !m_dying)
        destroy();
}

void SoFieldContainer::destroy() const
{
    // What goes along with a container waits until that one is gone, so that a long row of containers which
    // refer to one another needs no stack.
    static std::vector<const SoFieldContainer*>* going = nullptr;
    m_dying = true;
    if (going) {
        going->push_back(this);
        return;
    }
    std::vector<const SoFieldContainer*> own{this};
    going = &own;
    while (!own.empty()) {
        const SoFieldContainer* next = own.back();
        own.pop_back();
        next->finalize();
    }
    going = nullptr;
}

void SoFieldContainer::finalize() const
{
    // A listener may take and give back references while it looks at the dying container.
    m_refCount = 1;
    const std::vector<DyingListener> listeners = dyingListeners();
    for (const DyingListener& listener : listeners)
        listener.callback(listener.data, const_cast<SoFieldContainer*>(this));
    // Fields that follow one of these take its last value while it is there.
    for (SoField* field = m_fields.m_first; field; field = field->m_next)
        field->releaseDependents();
    delete this;
}

SoFieldContainer* SoFieldContainer::getByName(SbName name)
{
    return xsg::ContainerNames::get().find(name);
}

SbName SoFieldContainer::getReferenceName() const
{
    if (m_name != SbName() && getByName(m_name) == this)
        return m_name;
    m_listed = true;
    return xsg::ContainerNames::get().substituteFor(this);
}

void SoFieldContainer::setName(SbName name)
{
    m_name = name;
    m_listed = true;
    xsg::ContainerNames::get().rename(name, this);
    SoNotification change;
    change.serial = nextSerial();
    notify(change);
}

SoField* SoFieldContainer::getField(SbName name) const
{
    for (int i = 0; SoField* field = m_fields.getField(this, i); ++i) {
        if (field->getName() == name)
            return field;
    }
    return nullptr;
}

void SoFieldContainer::notify(const SoNotification& change)
{
    if (!m_sensors)
        return;
    for (SoDataSensor* sensor : *m_sensors)
        sensor->notified(change);
}

std::uint64_t SoFieldContainer::nextSerial()
{
    static std::uint64_t serial = 0;
    return ++serial;
}

void SoFieldContainer::addDyingCallback(DyingCallback callback, void* data)
{
    dyingListeners().push_back({callback, data});
}

void SoFieldContainer::removeDyingCallback(DyingCallback callback, void* data)
{
    auto& listeners = dyingListeners();
    const auto is = [&](const DyingListener& l) { return l.callback == callback && l.data == data; };
    listeners.erase(std::remove_if(listeners.begin(), listeners.end(), is), listeners.end());
}

SbName SoFieldData::getFieldName(int index) const
{
    const SoField* field = m_first;
    for (int i = 0; field && i < index; ++i)
        field = field->m_next;
    return field && index >= 0 ? field->getName() : SbName();
}

int SoFieldData::getIndex(const SoFieldContainer* container, const SoField* wanted) const
{
    int index = 0;
    for (const SoField* field = container->m_fields.m_first; field; field = field->m_next, ++index) {
        if (field == wanted)
            return index;
    }
    return -1;
}

SoField* SoFieldData::getField(const SoFieldContainer* container, int index) const
{
    SoField* field = index < 0 ? nullptr : container->m_fields.m_first;
    for (int i = 0; field && i < index; ++i)
        field = field->m_next;
    return field;
}

SoField* SoFieldData::getNext(const SoField* field) const
{
    return field->m_next;
}

void SoFieldData::append(SoField* field)
{
    (m_last ? m_last->m_next : m_first) = field;
    m_last = field;
    ++m_count;
}

void SoFieldData::remove(SoField* field)
{
    SoField* before = nullptr;
    for (SoField* at = m_first; at && at != field; at = at->m_next)
        before = at;
    (before ? before->m_next : m_first) = field->m_next;
    if (m_last == field)
        m_last = before;
    --m_count;
}
