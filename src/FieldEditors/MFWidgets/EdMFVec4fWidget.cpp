// SPDX-License-Identifier: MIT
#include "EdMFVec4fWidget.h"

EdMFVec4fWidget::EdMFVec4fWidget(const char* name)
    : EdMFComponentsWidget(name)
{
}
