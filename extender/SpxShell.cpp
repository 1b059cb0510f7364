// SPDX-License-Identifier: MIT
#include "SpxShell.h"

namespace
{

SpxShell* s_instance = nullptr;

} // namespace

SpxShell::SpxShell()
{
    s_instance = this;
}

SpxShell::~SpxShell()
{
    if (s_instance == this)
        s_instance = nullptr;
}

SpxShell* SpxShell::getInstance()
{
    return s_instance;
}
