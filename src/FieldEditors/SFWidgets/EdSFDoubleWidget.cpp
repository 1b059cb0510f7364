// SPDX-License-Identifier: MIT
#include "EdSFDoubleWidget.h"

EdSFDoubleWidget::EdSFDoubleWidget(const char* name)
    : EdSFRealWidget(DoubleFrame, name)
{
    setFieldType(SoSFDouble::getClassTypeId(), name);
}
