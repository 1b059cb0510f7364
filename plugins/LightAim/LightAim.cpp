// SPDX-License-Identifier: MIT
#include "LightAim.h"

#include <scopix/SpxPluginNote.h>

#include <memory>

SPX_PLUGIN_NOTE("LightAim", "1.0.0")

namespace
{

std::unique_ptr<LightAim> s_plugin;

} // namespace

LightAim::LightAim()
{
    setName("LightAim");
    setDescription("Aims directional lights by azimuth and elevation.");
    setVersion("1.0.0");
}

bool LightAim::load()
{
    addExtension(&m_editor);
    return SpxPlugin::load();
}

SpxPlugin* loadPlugin()
{
    s_plugin = std::make_unique<LightAim>();
    return s_plugin.get();
}

void unloadPlugin()
{
    s_plugin.reset();
}
