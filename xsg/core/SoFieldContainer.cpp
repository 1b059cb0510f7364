// SPDX-License-Identifier: MIT
#include <xsg/core/SoFieldContainer.h>

#include <xsg/core/Context.h>
#include <xsg/core/SoChangeListener.h>
#include <xsg/core/SoField.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <new>

template class SoTyped<SoFieldContainer, SoTypedObject>;

SoFieldContainer::~SoFieldContainer()
{
    if (m_listed)
        xsg::Context::get().names.remove(this);
    while (hasSensors())
        m_sensors->back()->subjectDestroyed();
}

void SoFieldContainer::unref() const
{
    if (--m_refCount <= 0 && !m_dying)
        destroy();
}

void SoFieldContainer::destroy() const
{
    // Containers that lose their last reference while another one is destroyed wait until that is done, so
    // that a long row of containers which refer to one another needs no stack.
    auto& pending = xsg::Context::get().pendingDestruction;
    m_dying = true;
    if (pending) {
        try {
            pending->push_back(this);
        } catch (const std::bad_alloc&) {
            finalize(); // which needs no memory, and the stack instead
        }
        return;
    }
    std::vector<const SoFieldContainer*> own;
    pending = &own;
    finalize();
    while (!own.empty()) {
        const SoFieldContainer* next = own.back();
        own.pop_back();
        next->finalize();
    }
    pending = nullptr;
}

void SoFieldContainer::finalize() const
{
    // A listener may take and give back references while it looks at the dying container.
    m_refCount = 1;
    const auto listeners = xsg::Context::get().destructionListeners;
    for (const auto& listener : listeners)
        listener.callback(listener.data, const_cast<SoFieldContainer*>(this));
    // Fields that follow one of these take its last value while it is there.
    for (SoField* field = m_fields.m_first; field; field = field->m_next)
        field->releaseDependents();
    delete this;
}

SoFieldContainer* SoFieldContainer::getByName(SbName name)
{
    return xsg::Context::get().names.find(name);
}

SbName SoFieldContainer::getReferenceName() const
{
    if (m_name != SbName() && getByName(m_name) == this)
        return m_name;
    m_listed = true;
    return xsg::Context::get().names.substituteFor(this);
}

void SoFieldContainer::setName(SbName name)
{
    m_name = name;
    m_listed = true;
    xsg::Context::get().names.rename(name, this);
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
    for (SoChangeListener* sensor : *m_sensors)
        sensor->changed(change);
}

std::uint64_t SoFieldContainer::nextSerial()
{
    return ++xsg::Context::get().lastNotification;
}

void SoFieldContainer::addDyingCallback(DyingCallback callback, void* data)
{
    xsg::Context::get().destructionListeners.push_back({callback, data});
}

void SoFieldContainer::removeDyingCallback(DyingCallback callback, void* data)
{
    auto& listeners = xsg::Context::get().destructionListeners;
    const auto is = [&](const auto& l) { return l.callback == callback && l.data == data; };
    listeners.erase(std::remove_if(listeners.begin(), listeners.end(), is), listeners.end());
}

void SoFieldContainer::addListener(SoChangeListener* listener)
{
    if (!m_sensors)
        m_sensors = std::make_unique<std::vector<SoChangeListener*>>();
    m_sensors->push_back(listener);
}

void SoFieldContainer::removeListener(SoChangeListener* listener)
{
    if (m_sensors)
        m_sensors->erase(std::remove(m_sensors->begin(), m_sensors->end(), listener), m_sensors->end());
}
