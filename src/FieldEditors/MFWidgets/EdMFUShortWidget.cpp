// SPDX-License-Identifier: MIT
#include "EdMFUShortWidget.h"

EdMFUShortWidget::EdMFUShortWidget(const char* name)
    : EdMFIntegerWidget(name)
{
}
