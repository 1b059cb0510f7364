// SPDX-License-Identifier: MIT
#include "SpxViewLook.h"

#include "SpxShell.h"

SpxViewLook::~SpxViewLook() = default;

SpxViewLook* SpxViewLook::getInstance()
{
    return dynamic_cast<SpxViewLook*>(SpxShell::getInstance());
}
