// SPDX-License-Identifier: MIT
#include "EdMFRotationWidget.h"

EdMFRotationWidget::EdMFRotationWidget(const char* name)
    : EdMFComponentsWidget(name)
{
}
