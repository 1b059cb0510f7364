// SPDX-License-Identifier: MIT
#include "SpxViewServices.h"

#include "SpxServices.h"

SpxPickListener::~SpxPickListener() = default;

SpxViewServices::~SpxViewServices() = default;

SpxViewServices* SpxViewServices::getInstance()
{
    return dynamic_cast<SpxViewServices*>(SpxServices::getInstance());
}
