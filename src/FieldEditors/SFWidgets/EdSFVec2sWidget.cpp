// SPDX-License-Identifier: MIT
#include "EdSFVec2sWidget.h"

EdSFVec2sWidget::EdSFVec2sWidget(const char* name)
    : EdSF2iSpinBoxOf(name, 0)
{
    setFieldType(SoSFVec2s::getClassTypeId(), name);
}
