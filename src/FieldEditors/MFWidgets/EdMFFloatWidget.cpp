// SPDX-License-Identifier: MIT
#include "EdMFFloatWidget.h"

EdMFFloatWidget::EdMFFloatWidget(const char* name)
    : EdMFRealWidget(name)
{
}
