// SPDX-License-Identifier: MIT
#include "SpxFreshDefault.h"

#include <xsg/core/SoField.h>

#include <memory>

namespace
{

SoRef<SoFieldContainer> freshInstanceOf(SoType type)
{
    std::unique_ptr<SoTypedObject> object(type.createInstance());
    auto* container = dynamic_cast<SoFieldContainer*>(object.get());
    if (container)
        static_cast<void>(object.release()); // counted from here on
    return container;
}

} // namespace

SpxFreshDefault::SpxFreshDefault(const SoField* field)
{
    const SoFieldContainer* container = field->getContainer();
    if (!container)
        return;
    m_instance = freshInstanceOf(container->getTypeId());
    if (!m_instance)
        return;
    const int index = container->getFieldData()->getIndex(container, field);
    SoField* candidate = m_instance->getFieldData()->getField(m_instance.get(), index);
    if (candidate && candidate->getTypeId() == field->getTypeId())
        m_field = candidate;
}
