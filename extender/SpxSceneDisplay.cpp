// SPDX-License-Identifier: MIT
#include "SpxSceneDisplay.h"

#include "SpxShell.h"

SpxSceneDisplay::~SpxSceneDisplay() = default;

SpxSceneDisplay* SpxSceneDisplay::getInstance()
{
    return dynamic_cast<SpxSceneDisplay*>(SpxShell::getInstance());
}
