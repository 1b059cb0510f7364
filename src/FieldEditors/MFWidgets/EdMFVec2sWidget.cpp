// SPDX-License-Identifier: MIT
#include "EdMFVec2sWidget.h"

EdMFVec2sWidget::EdMFVec2sWidget(const char* name)
    : EdMFComponentsWidget(name)
{
}
