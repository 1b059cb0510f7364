// SPDX-License-Identifier: MIT
#include "SpxExtension.h"

#include "SpxPluginsManager.h"

SpxExtension::SpxExtension() = default;

SpxExtension::~SpxExtension() = default;

void SpxExtension::activate()
{
    setActive(true);
}

void SpxExtension::deactivate()
{
    setActive(false);
}

void SpxExtension::hide()
{
    setShown(false);
}

void SpxExtension::show()
{
    setShown(true);
}

const SpxProfileSetting* SpxExtension::getProfileSetting() const
{
    static const SpxProfileSetting nothing;
    const SpxPluginsManager* manager = SpxPluginsManager::getInstance();
    const SpxProfileSetting* setting = manager ? manager->getProfileSetting(this) : nullptr;
    return setting ? setting : &nothing;
}

void SpxExtension::setActive(bool active)
{
    if (m_active == active)
        return;
    m_active = active;
    emit activeChanged(active);
}

void SpxExtension::setShown(bool shown)
{
    if (m_shown == shown)
        return;
    m_shown = shown;
    emit shownChanged(shown);
}
