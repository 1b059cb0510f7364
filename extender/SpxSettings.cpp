// SPDX-License-Identifier: MIT
#include "SpxSettings.h"

#include "SpxShell.h"

SpxSettings::~SpxSettings() = default;

SpxSettings* SpxSettings::getInstance()
{
    return dynamic_cast<SpxSettings*>(SpxShell::getInstance());
}
