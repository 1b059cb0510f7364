// SPDX-License-Identifier: MIT
#include "EdMFUInt32Widget.h"

EdMFUInt32Widget::EdMFUInt32Widget(const char* name)
    : EdMFIntegerWidget(name)
{
}
