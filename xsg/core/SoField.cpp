// SPDX-License-Identifier: MIT
#include <xsg/core/SoField.h>

#include <xsg/core/Context.h>
#include <xsg/core/SoChangeListener.h>
#include <xsg/core/SoFieldContainer.h>
#include <xsg/counters/LibraryCounters.h>
#include <xsg/types/SoTypedImpl.h>

#include <algorithm>
#include <new>

template class SoTyped<SoField, SoTypedObject>;

SoField::SoField(SoFieldContainer* owner, const char* name)
    : m_container(owner)
    , m_name(name)
{
    if (owner)
        owner->m_fields.append(this);
    xsg::feeds.fieldsAlive.add();
}

SoField::~SoField()
{
    leaveSource();
    if (m_listeners) {
        // The value is destroyed already: the fields that follow keep theirs.
        while (!m_listeners->dependents.empty())
            m_listeners->dependents.back()->leaveSource();
        while (!m_listeners->sensors.empty())
            m_listeners->sensors.back()->subjectDestroyed();
    }
    if (m_isTrigger)
        xsg::Context::get().triggerDestroyed(this);
    if (m_container)
        m_container->m_fields.remove(this);
    xsg::feeds.fieldsAlive.add(-1);
}

bool SoField::set(const SbString& text)
{
    aboutToWrite();
    if (!parse(text.str()))
        return false;
    valueWritten();
    return true;
}

bool SoField::setWithoutPropagation(const SbString& text)
{
    aboutToWrite();
    if (!parse(text.str()))
        return false;
    m_default = false;
    m_needsEvaluation = false;
    notify(0, -1, Dependents::DoNot);
    return true;
}

bool SoField::copyFrom(const SoField& other)
{
    if (!canConvertFrom(other))
        return false;
    other.evaluate();
    aboutToWrite();
    if (!take(other))
        return false;
    valueWritten();
    return true;
}

void SoField::setDefault(bool isDefault)
{
    aboutToWrite(0, 0);
    m_default = isDefault;
}

void SoField::setIgnored(bool ignored)
{
    aboutToWrite(0, 0);
    m_ignored = ignored;
    // The value is the same as before, so that what was written to a dependent field stands.
    notify(0, -1, Dependents::DoNot);
}

bool SoField::canConvertFrom(const SoField& other) const
{
    return other.getTypeId() == getTypeId() || hasSameValues(other) ||
           (numbersPerValue() > 0 && numbersPerValue() == other.numbersPerValue()) || isTextual() ||
           other.isTextual();
}

bool SoField::take(const SoField& other)
{
    if (other.getTypeId() == getTypeId()) {
        assign(other);
        return true;
    }
    if (hasSameValues(other))
        return takeSameValues(other);
    if (numbersPerValue() == 0 || numbersPerValue() != other.numbersPerValue())
        return takeText(other);
    if (!isList() && other.valueCount() == 0)
        return false;
    takeNumbers(other);
    return true;
}

bool SoField::takeText(const SoField& other)
{
    // A list and a single text stand for each other as a whole.
    if (isList() && !isTextual() && !other.isList()) {
        std::string whole;
        other.writePlain(whole, 0);
        return parse(whole);
    }
    if (!isList() && !other.isTextual()) {
        SbString whole;
        other.get(whole);
        return assignFromText({whole.str()});
    }
    const int count = isList() ? other.valueCount() : std::min(other.valueCount(), 1);
    std::vector<std::string> texts(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        other.writePlain(texts[static_cast<std::size_t>(i)], i);
    return assignFromText(texts);
}

bool SoField::connectFrom(SoField* source)
{
    if (!source || !canConvertFrom(*source))
        return false;
    if (isSourceOf(*source))
        return false;
    disconnect();
    auto& dependents = source->listeners().dependents;
    dependents.push_back(this); // which may fail
    m_dependentSlot = static_cast<std::uint32_t>(dependents.size() - 1);
    m_source = source;
    m_needsEvaluation = true;
    notify(0, -1, Dependents::Hear);
    return true;
}

// Whether `other` is this field or takes its value from it, directly or not.
bool SoField::isSourceOf(const SoField& other) const
{
    if (&other == this)
        return true;
    const bool hasDependents = m_listeners && !m_listeners->dependents.empty();
    const SoField* field = hasDependents ? &other : nullptr;
    while (field && field != this)
        field = field->m_source;
    return field != nullptr;
}

void SoField::disconnect()
{
    evaluate();
    leaveSource();
}

void SoField::leaveSource()
{
    if (!m_source)
        return;
    // The last one takes the place, so that a field leaves at once however many others follow the same one.
    auto& dependents = m_source->m_listeners->dependents;
    dependents[m_dependentSlot] = dependents.back();
    dependents[m_dependentSlot]->m_dependentSlot = m_dependentSlot;
    dependents.pop_back();
    m_source = nullptr;
    m_needsEvaluation = false;
}

void SoField::releaseDependents()
{
    while (m_listeners && !m_listeners->dependents.empty()) {
        SoField* dependent = m_listeners->dependents.back();
        try {
            dependent->disconnect();
        } catch (const std::bad_alloc&) {
            dependent->leaveSource(); // without its last value: this one is about to be destroyed
        }
    }
}

// From the first field up the chain that is up to date down to this one; a walk, since chains may be long.
void SoField::fetch() const
{
    std::vector<const SoField*> stale;
    for (const SoField* field = this; field->m_needsEvaluation; field = field->m_source)
        stale.push_back(field);
    for (auto at = stale.rbegin(); at != stale.rend(); ++at) {
        auto* field = const_cast<SoField*>(*at);
        field->m_needsEvaluation = false;
        if (field->take(*field->m_source))
            field->m_default = false;
    }
}

void SoField::touch()
{
    notify(0, -1, Dependents::Hear);
}

void SoField::valueWritten(int start, int count)
{
    m_default = false;
    m_needsEvaluation = false;
    notify(start, count, Dependents::Hear);
}

void SoField::notify(int start, int count, Dependents dependents)
{
    notifyOwnListeners(start, count);
    if (dependents == Dependents::Hear && m_listeners && !m_listeners->dependents.empty())
        notifyDependents();
}

void SoField::notifyOwnListeners(int start, int count)
{
    ++m_changeCount;
    if (m_container)
        ++m_container->m_fieldChangeCount;
    xsg::feeds.fieldChanges.add();
    SoNotification change;
    change.field = this;
    change.start = start;
    change.count = count;
    if (m_listeners) {
        for (SoChangeListener* sensor : m_listeners->sensors)
            sensor->changed(change);
    }
    if (m_container) {
        change.serial = SoFieldContainer::nextSerial();
        m_container->notify(change);
    }
}

void SoField::notifyDependents()
{
    std::vector<SoField*> open = m_listeners->dependents;
    while (!open.empty()) {
        SoField* field = open.back();
        open.pop_back();
        field->m_needsEvaluation = true;
        field->notifyOwnListeners(0, -1);
        if (field->m_listeners)
            open.insert(open.end(), field->m_listeners->dependents.begin(),
                        field->m_listeners->dependents.end());
    }
}

SoField::Listeners& SoField::listeners()
{
    if (!m_listeners)
        m_listeners = std::make_unique<Listeners>();
    return *m_listeners;
}

void SoField::addListener(SoChangeListener* listener)
{
    listeners().sensors.push_back(listener);
}

void SoField::removeListener(SoChangeListener* listener)
{
    auto& all = listeners().sensors;
    all.erase(std::remove(all.begin(), all.end(), listener), all.end());
}
