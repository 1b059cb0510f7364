// The plug-in object: holds every default extension and editor by value and hands them to the host.
#pragma once

#include <scopix/SpxPlugin.h>

class SpxDefaults : public SpxPlugin
{
public:
    SpxDefaults();
    ~SpxDefaults() override;

    bool load() override;
};

extern "C" {
// The library's two entry points; only one plug-in object lives at a time.
__attribute__((visibility("default"))) SpxPlugin* loadPlugin();
__attribute__((visibility("default"))) void unloadPlugin();
}
