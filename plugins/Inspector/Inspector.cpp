// SPDX-License-Identifier: MIT
#include "Inspector.h"

#include "panel/PanelEditor.h"
#include "panel/PinnedPanels.h"
#include "table/TableEditors.h"

#include <scopix/SpxPluginNote.h>

SPX_PLUGIN_NOTE("Inspector", "1.0.0")

namespace inspector
{

namespace
{

// Every extension of the plug-in, in the order of registration.
std::vector<std::unique_ptr<SpxExtension>> makeExtensions()
{
    std::vector<std::unique_ptr<SpxExtension>> all = makeTableEditors();
    auto pins = std::make_unique<PinnedPanels>();
    all.push_back(std::make_unique<PanelEditor>(*pins));
    all.push_back(std::move(pins));
    return all;
}

std::unique_ptr<Inspector> s_plugin;

} // namespace

Inspector::Inspector()
{
    setName("Inspector");
    setVendor("Arvex");
    setDescription("Shows whole nodes in one panel, and lists as tables.");
    setVersion("1.0.0");
}

bool Inspector::load()
{
    m_owned = makeExtensions();
    for (const auto& extension : m_owned)
        addExtension(extension.get());
    return SpxPlugin::load();
}

} // namespace inspector

extern "C" __attribute__((visibility("default"))) SpxPlugin* loadPlugin()
{
    inspector::s_plugin = std::make_unique<inspector::Inspector>();
    return inspector::s_plugin.get();
}

extern "C" __attribute__((visibility("default"))) void unloadPlugin()
{
    inspector::s_plugin.reset();
}
