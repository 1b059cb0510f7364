// SPDX-License-Identifier: MIT
#include "SpxOutput.h"

namespace
{

SpxOutput* s_instance = nullptr;

} // namespace

SpxOutputListener::~SpxOutputListener() = default;

SpxOutput::SpxOutput()
{
    s_instance = this;
}

SpxOutput::~SpxOutput()
{
    if (s_instance == this)
        s_instance = nullptr;
}

SpxOutput* SpxOutput::getInstance()
{
    return s_instance;
}
