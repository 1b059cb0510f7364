// SPDX-License-Identifier: MIT
#include "EdSFVec4fWidget.h"

EdSFVec4fWidget::EdSFVec4fWidget(const char* name)
    : EdSFVectorOf(name, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("w")})
{
    setFieldType(SoSFVec4f::getClassTypeId(), name);
}
