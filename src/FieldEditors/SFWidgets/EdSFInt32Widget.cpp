// SPDX-License-Identifier: MIT
#include "EdSFInt32Widget.h"

#include <xsg/fields/SoSFInt32.h>

EdSFInt32Widget::EdSFInt32Widget(const char* name)
    : EdSFIntegerWidget(Int32Frame, name)
{
    setFieldType(SoSFInt32::getClassTypeId(), name);
}
