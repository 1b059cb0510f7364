// SPDX-License-Identifier: MIT
#include "EdSFVec2i32Widget.h"

EdSFVec2i32Widget::EdSFVec2i32Widget(const char* name)
    : EdSF2iSpinBoxOf(name, 2)
{
    setFieldType(SoSFVec2i32::getClassTypeId(), name);
}
