// SPDX-License-Identifier: MIT
#include "EdSFUInt32Widget.h"

#include <xsg/fields/SoSFUInt32.h>

EdSFUInt32Widget::EdSFUInt32Widget(const char* name)
    : EdSFIntegerWidget(UInt32Frame, name)
{
    setFieldType(SoSFUInt32::getClassTypeId(), name);
}
