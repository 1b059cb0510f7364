// SPDX-License-Identifier: MIT
#include "EdMFPlaneWidget.h"

EdMFPlaneWidget::EdMFPlaneWidget(const char* name)
    : EdMFComponentsWidget(name)
{
}
