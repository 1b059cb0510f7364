// SPDX-License-Identifier: MIT
#include "EdMFShortWidget.h"

EdMFShortWidget::EdMFShortWidget(const char* name)
    : EdMFIntegerWidget(name)
{
}
