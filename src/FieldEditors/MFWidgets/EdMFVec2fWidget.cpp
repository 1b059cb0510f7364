// SPDX-License-Identifier: MIT
#include "EdMFVec2fWidget.h"

EdMFVec2fWidget::EdMFVec2fWidget(const char* name)
    : EdMFComponentsWidget(name)
{
}
