// SPDX-License-Identifier: MIT
#include "SpxPluginsManager.h"

namespace
{

SpxPluginsManager* s_instance = nullptr;

} // namespace

SpxPluginsManager::SpxPluginsManager()
{
    s_instance = this;
}

SpxPluginsManager::~SpxPluginsManager()
{
    if (s_instance == this)
        s_instance = nullptr;
}

SpxPluginsManager* SpxPluginsManager::getInstance()
{
    return s_instance;
}
