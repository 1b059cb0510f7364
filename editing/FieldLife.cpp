// SPDX-License-Identifier: MIT
#include "FieldLife.h"

#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QHash>

#include <utility>

namespace
{

using Lives = QHash<const SoFieldContainer*, std::weak_ptr<FieldLife>>;

// There while it holds any. No static object: what refers to a field may outlive those of this library at the
// end of the process.
Lives* s_lives = nullptr;

} // namespace

std::shared_ptr<FieldLife> FieldLife::of(SoField& field)
{
    SoFieldContainer* container = field.getContainer();
    return container ? of(*container) : std::shared_ptr<FieldLife>(new FieldLife(field));
}

std::shared_ptr<FieldLife> FieldLife::of(SoFieldContainer& container)
{
    if (!s_lives) {
        s_lives = new Lives;
        SoFieldContainer::addDyingCallback(dyingCB, nullptr);
    }
    if (std::shared_ptr<FieldLife> known = s_lives->value(&container).lock())
        return known;
    const std::shared_ptr<FieldLife> life(new FieldLife(container));
    s_lives->insert(&container, life);
    return life;
}

void FieldLife::forget(const SoFieldContainer* container)
{
    s_lives->remove(container);
    if (!s_lives->isEmpty())
        return;
    SoFieldContainer::removeDyingCallback(dyingCB, nullptr);
    delete std::exchange(s_lives, nullptr);
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
    if (m_container)
        forget(m_container);
}

bool FieldLife::isOver() const
{
    return m_container ? m_container->isBeingDestroyed() : !m_alone.getAttachedField();
}

void FieldLife::dyingCB(void* /*data*/, SoFieldContainer* dying)
{
    // Another listener may have let go of the last one, while this one is still to be called.
    const std::shared_ptr<FieldLife> life = s_lives ? s_lives->value(dying).lock() : nullptr;
    if (!life)
        return;
    forget(dying);
    life->m_container = nullptr;
    emit life->over();
}
