// SPDX-License-Identifier: MIT
#include "EdMFInt32Widget.h"

EdMFInt32Widget::EdMFInt32Widget(const char* name)
    : EdMFIntegerWidget(name)
{
}
