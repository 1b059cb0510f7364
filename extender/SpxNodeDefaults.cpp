// SPDX-License-Identifier: MIT
#include "SpxNodeDefaults.h"

#include "SpxServices.h"

SpxNodeDefaults::~SpxNodeDefaults() = default;

SpxNodeDefaults* SpxNodeDefaults::getInstance()
{
    return dynamic_cast<SpxNodeDefaults*>(SpxServices::getInstance());
}
