// SPDX-License-Identifier: MIT
#include "SpxServices.h"

namespace
{

SpxServices* s_instance = nullptr;

} // namespace

SpxServices::SpxServices()
{
    s_instance = this;
}

SpxServices::~SpxServices()
{
    if (s_instance == this)
        s_instance = nullptr;
}

SpxServices* SpxServices::getInstance()
{
    return s_instance;
}
