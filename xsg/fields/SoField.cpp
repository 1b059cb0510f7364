#include <xsg/fields/SoField.h>

#include <xsg/core/SoFieldContainer.h>
#include <xsg/core/SoTypedImpl.h>
#include <xsg/sensors/SoDataSensor.h>

#include <algorithm>

template class SoTyped<SoField, SoTypedObject>;

SoField::SoField(SoFieldContainer* owner, const char* name)
    : m_container(owner)
    , m_name(name)
{
    if (owner)
        owner->m_fields.append(this);
}

SoField::~SoField()
{
    disconnect();
    if (m_listeners) {
        while (!m_listeners->followers.empty())
            m_listeners->followers.back()->disconnect();
        while (!m_listeners->sensors.empty())
            m_listeners->sensors.back()->detach();
    }
    if (m_container)
        m_container->m_fields.remove(this);
}

bool SoField::copyFrom(const SoField& other)
{
    if (!canConvertFrom(other))
        return false;
    other.evaluate();
    take(other);
    valueWritten();
    return true;
}

void SoField::setIgnored(bool ignored)
{
    m_ignored = ignored;
    touch();
}

bool SoField::canConvertFrom(const SoField& other) const
{
    return other.getTypeId() == getTypeId() || converts(other);
}

bool SoField::converts(const SoField& /*other*/) const
{
    return false;
}

void SoField::assignConverted(const SoField& /*other*/) {}

void SoField::take(const SoField& other)
{
    if (other.getTypeId() == getTypeId())
        assign(other);
    else
        assignConverted(other);
}

bool SoField::connectFrom(SoField* master)
{
    if (!master || !canConvertFrom(*master))
        return false;
    for (const SoField* f = master; f; f = f->m_master) {
        if (f == this)
            return false;
    }
    disconnect();
    m_master = master;
    master->listeners().followers.push_back(this);
    m_needsEvaluation = true;
    notify(0, -1);
    return true;
}

void SoField::disconnect()
{
    if (!m_master)
        return;
    evaluate();
    auto& followers = m_master->m_listeners->followers;
    followers.erase(std::remove(followers.begin(), followers.end(), this), followers.end());
    m_master = nullptr;
    m_needsEvaluation = false;
}

void SoField::fetch() const
{
    m_needsEvaluation = false;
    m_master->evaluate();
    auto* self = const_cast<SoField*>(this);
    self->m_default = false;
    self->take(*m_master);
}

void SoField::touch()
{
    notify(0, -1);
}

void SoField::valueWritten(int start, int count)
{
    m_default = false;
    m_needsEvaluation = false;
    notify(start, count);
}

void SoField::notify(int start, int count)
{
    ++m_changeCount;
    SoNotification change;
    change.field = this;
    change.start = start;
    change.count = count;
    if (m_listeners) {
        for (SoDataSensor* sensor : m_listeners->sensors)
            sensor->notified(change);
        for (SoField* follower : m_listeners->followers) {
            follower->m_needsEvaluation = true;
            follower->notify(0, -1);
        }
    }
    if (m_container) {
        change.serial = SoFieldContainer::nextSerial();
        m_container->notify(change);
    }
}

SoField::Listeners& SoField::listeners()
{
    if (!m_listeners)
        m_listeners = std::make_unique<Listeners>();
    return *m_listeners;
}
