// SPDX-License-Identifier: MIT
#include "EdMFVec3fWidget.h"

EdMFVec3fWidget::EdMFVec3fWidget(const char* name, int tableKind)
    : EdMFComponentsWidget(name, tableKind)
{
}
