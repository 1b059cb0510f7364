// SPDX-License-Identifier: MIT
#include "EdSFFloatWidget.h"

EdSFFloatWidget::EdSFFloatWidget(const char* name)
    : EdSFRealWidget(FloatFrame, name)
{
    setFieldType(SoSFFloat::getClassTypeId(), name);
}
