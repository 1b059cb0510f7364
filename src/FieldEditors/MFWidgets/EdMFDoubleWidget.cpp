// SPDX-License-Identifier: MIT
#include "EdMFDoubleWidget.h"

EdMFDoubleWidget::EdMFDoubleWidget(const char* name)
    : EdMFRealWidget(name)
{
}
