// SPDX-License-Identifier: MIT
#include "EdSFShortWidget.h"

#include <xsg/fields/SoSFShort.h>

EdSFShortWidget::EdSFShortWidget(const char* name)
    : EdSFIntegerWidget(ShortFrame, name)
{
    setFieldType(SoSFShort::getClassTypeId(), name);
}
