// SPDX-License-Identifier: MIT
#pragma once

#include "LightAimEditor.h"

#include <scopix/SpxPlugin.h>

/// The plug-in object: adds an editor that aims directional lights.
class LightAim : public SpxPlugin
{
public:
    LightAim();
    bool load() override;

private:
    LightAimEditor m_editor;
};

extern "C" {
__attribute__((visibility("default"))) SpxPlugin* loadPlugin();
__attribute__((visibility("default"))) void unloadPlugin();
}
