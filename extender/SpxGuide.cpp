// SPDX-License-Identifier: MIT
#include "SpxGuide.h"

#include "SpxShell.h"

SpxGuide::~SpxGuide() = default;

SpxGuide* SpxGuide::getInstance()
{
    return dynamic_cast<SpxGuide*>(SpxShell::getInstance());
}
