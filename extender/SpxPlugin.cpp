// SPDX-License-Identifier: MIT
#include "SpxPlugin.h"

SpxPlugin::SpxPlugin() = default;

SpxPlugin::~SpxPlugin() = default;

bool SpxPlugin::load()
{
    return true;
}

void SpxPlugin::unload()
{
    m_extensions.clear();
}

void SpxPlugin::addExtension(SpxExtension* extension)
{
    if (extension)
        m_extensions.append(extension);
}
