#include "SpxDefaults.h"

namespace
{

SpxDefaults* s_plugin = nullptr;

} // namespace

SpxDefaults::SpxDefaults()
{
    setName("SpxDefaults");
    setVendor("Arvex");
    setDescription("Plug-in which loads Scopix default extensions.");
    setVersion("1.0.0");
}

SpxDefaults::~SpxDefaults() = default;

bool SpxDefaults::load()
{
    return SpxPlugin::load();
}

SpxPlugin* loadPlugin()
{
    s_plugin = new SpxDefaults;
    return s_plugin;
}

void unloadPlugin()
{
    delete s_plugin;
    s_plugin = nullptr;
}
