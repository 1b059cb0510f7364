// SPDX-License-Identifier: MIT
#include "EdSFUShortWidget.h"

#include <xsg/fields/SoSFUShort.h>

EdSFUShortWidget::EdSFUShortWidget(const char* name)
    : EdSFIntegerWidget(UShortFrame, name)
{
    setFieldType(SoSFUShort::getClassTypeId(), name);
}
