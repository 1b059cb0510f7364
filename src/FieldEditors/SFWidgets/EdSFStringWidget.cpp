// SPDX-License-Identifier: MIT
#include "EdSFStringWidget.h"

EdSFStringWidget::EdSFStringWidget(const char* name)
    : EdSFTextWidget(name)
{
    setFieldType(SoSFString::getClassTypeId(), name);
}
