// SPDX-License-Identifier: MIT
#include "SpxNavigator.h"

namespace
{

SpxNavigator* s_instance = nullptr;

} // namespace

SpxNavigator::SpxNavigator()
{
    s_instance = this;
}

SpxNavigator::~SpxNavigator()
{
    if (s_instance == this)
        s_instance = nullptr;
}

SpxNavigator* SpxNavigator::getInstance()
{
    return s_instance;
}
