// SPDX-License-Identifier: MIT
#include "SpxShellMenus.h"

#include "SpxShell.h"

SpxShellMenus::~SpxShellMenus() = default;

SpxShellMenus* SpxShellMenus::getInstance()
{
    return dynamic_cast<SpxShellMenus*>(SpxShell::getInstance());
}
