// SPDX-License-Identifier: MIT
#include "FieldLife.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QHash>

namespace
{

using Lives = QHash<const SoFieldContainer*, std::weak_ptr<FieldLife>>;

// Never destroyed: what refers to a field may outlive this library's own objects at the end of the process.
Lives& lives()
{
    static auto& lives = *new Lives;
    return lives;
}

} // namespace

std::shared_ptr<FieldLife> FieldLife::of(SoField& field)
{
    SoFieldContainer* container = field.getContainer();
    return container ? of(*container) : std::shared_ptr<FieldLife>(new FieldLife(field));
}

std::shared_ptr<FieldLife> FieldLife::of(SoFieldContainer& container)
{
    if (std::shared_ptr<FieldLife> known = lives().value(&container).lock())
        return known;
    const std::shared_ptr<FieldLife> life(new FieldLife(container));
    if (lives().isEmpty())
        SoFieldContainer::addDyingCallback(dyingCB, nullptr);
    lives().insert(&container, life);
    return life;
}

FieldLife::FieldLife(SoFieldContainer& container)
    : m_container(&container)
{
}

FieldLife::FieldLife(SoField& aloneField)
{
    m_alone.attach(&aloneField);
}

FieldLife::~FieldLife()
{
    if (!m_container)
        return;
    lives().remove(m_container);
    if (lives().isEmpty())
        SoFieldContainer::removeDyingCallback(dyingCB, nullptr);
}

bool FieldLife::isOver() const
{
    return m_container ? m_container->isBeingDestroyed() : !m_alone.getAttachedField();
}

void FieldLife::dyingCB(void* /*data*/, SoFieldContainer* dying)
{
    const std::shared_ptr<FieldLife> life = lives().value(dying).lock();
    if (!life)
        return;
    lives().remove(dying);
    if (lives().isEmpty())
        SoFieldContainer::removeDyingCallback(dyingCB, nullptr);
    life->m_container = nullptr;
    emit life->over();
}
