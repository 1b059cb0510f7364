// SPDX-License-Identifier: MIT
#include "Profiler.h"

#include "console/LogDock.h"
#include "cost/CostDock.h"
#include "frames/FramesDock.h"

#include <scopix/SpxPluginNote.h>

SPX_PLUGIN_NOTE("Profiler", "1.0.0")

namespace profiler
{

namespace
{

std::unique_ptr<Profiler> s_plugin;

} // namespace

Profiler::Profiler()
{
    setName("Profiler");
    setVendor("Arvex");
    setDescription("Shows what frames and branches cost, and what is said.");
    setVersion("1.0.0");
}

bool Profiler::load()
{
    m_owned.push_back(std::make_unique<LogDock>());
    m_owned.push_back(std::make_unique<FramesDock>());
    m_owned.push_back(std::make_unique<CostDock>());
    for (const auto& extension : m_owned)
        addExtension(extension.get());
    return SpxPlugin::load();
}

} // namespace profiler

extern "C" __attribute__((visibility("default"))) SpxPlugin* loadPlugin()
{
    profiler::s_plugin = std::make_unique<profiler::Profiler>();
    return profiler::s_plugin.get();
}

extern "C" __attribute__((visibility("default"))) void unloadPlugin()
{
    profiler::s_plugin.reset();
}
