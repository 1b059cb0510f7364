// SPDX-License-Identifier: MIT
#include "SpxSceneServices.h"

#include "SpxServices.h"

SpxSceneServices::~SpxSceneServices() = default;

SpxSceneServices* SpxSceneServices::getInstance()
{
    return dynamic_cast<SpxSceneServices*>(SpxServices::getInstance());
}
