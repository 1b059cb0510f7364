// SPDX-License-Identifier: MIT
#include "EdMFVec2i32Widget.h"

EdMFVec2i32Widget::EdMFVec2i32Widget(const char* name)
    : EdMFComponentsWidget(name)
{
}
