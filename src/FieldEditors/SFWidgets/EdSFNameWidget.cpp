// SPDX-License-Identifier: MIT
#include "EdSFNameWidget.h"

EdSFNameWidget::EdSFNameWidget(const char* name)
    : EdSFTextWidget(name)
{
    setFieldType(SoSFName::getClassTypeId(), name);
}
