// SPDX-License-Identifier: MIT
#include <xsg/nodes/animation/SoAnimatedValues.h>

#include <xsg/core/Context.h>
#include <xsg/core/SoField.h>
#include <xsg/fields/SoSFEnum.h>

#include <utility>

namespace
{

void takeNames(SoField& copy, const SoField& original)
{
    auto* names = dynamic_cast<SoSFEnum*>(&copy);
    if (!names)
        return;
    int count = 0;
    const int* values = nullptr;
    const SbName* texts = nullptr;
    static_cast<const SoSFEnum&>(original).getEnums(count, values, texts);
    names->setEnums(count, values, texts);
}

// Null where the type cannot be instantiated.
std::unique_ptr<SoField> copyOf(const SoField& field)
{
    std::unique_ptr<SoTypedObject> object(field.getTypeId().createInstance());
    auto* copy = dynamic_cast<SoField*>(object.get());
    if (!copy)
        return nullptr;
    static_cast<void>(object.release());
    std::unique_ptr<SoField> owned(copy);
    takeNames(*copy, field);
    return copy->copyFrom(field) ? std::move(owned) : nullptr;
}

} // namespace

SoAnimatedValues& SoAnimatedValues::getInstance()
{
    static auto& values = xsg::Context::get().state<SoAnimatedValues>();
    return values;
}

SoAnimatedValues::Writing::Writing()
    : m_recorder(SoWriteRecorder::setActive(nullptr))
{
    ++getInstance().m_writing;
}

SoAnimatedValues::Writing::~Writing()
{
    --getInstance().m_writing;
    SoWriteRecorder::setActive(m_recorder);
}

// What somebody else has written since is the field's own.
const SoAnimatedValues::Held* SoAnimatedValues::find(const SoField& field) const
{
    const auto place = m_held.find(&field);
    const bool isHeld =
        place != m_held.end() && (m_writing > 0 || place->second.changeCount == field.getChangeCount());
    return isHeld ? &place->second : nullptr;
}

const SoField& SoAnimatedValues::getRest(const SoField& field) const
{
    const Held* held = m_held.empty() ? nullptr : find(field);
    return held ? *held->rest : field;
}

bool SoAnimatedValues::take(SoField& field, const SoFieldContainer* owner)
{
    if (!field.getContainer() || field.getContainer()->isBeingDestroyed() || field.isConnected())
        return false;
    if (const Held* held = find(field)) {
        const_cast<Held*>(held)->owner = owner;
        return true;
    }
    const Writing writing;
    SoFieldContainer* node = field.getContainer();
    Held held{SoRef<SoFieldContainer>(node == owner ? nullptr : node),
              &field,
              copyOf(field),
              owner,
              field.getChangeCount(),
              field.isDefault()};
    const bool isKept = held.rest != nullptr;
    if (isKept)
        m_held[&field] = std::move(held);
    return isKept;
}

bool SoAnimatedValues::isOwner(const SoField& field, const SoFieldContainer* owner) const
{
    const Held* held = find(field);
    return held && held->owner == owner;
}

void SoAnimatedValues::written(SoField& field)
{
    Held& held = m_held[&field];
    if (held.isDefault)
        field.setDefault(true);
    held.changeCount = field.getChangeCount();
}

void SoAnimatedValues::giveBack(const SoField& field)
{
    const bool isHeld = find(field) != nullptr;
    const auto place = m_held.find(&field);
    if (place == m_held.end())
        return;
    if (isHeld) {
        const Writing writing;
        place->second.field->copyFrom(*place->second.rest);
        written(*place->second.field);
    }
    const Held ended = std::move(place->second); // the node may go with it
    m_held.erase(place);
}

void SoAnimatedValues::giveBack(const SoField& field, const SoFieldContainer* owner)
{
    const auto place = m_held.find(&field);
    if (place != m_held.end() && place->second.owner == owner)
        giveBack(field);
}
