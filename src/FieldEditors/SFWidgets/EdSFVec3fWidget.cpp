// SPDX-License-Identifier: MIT
#include "EdSFVec3fWidget.h"

namespace
{

constexpr EdColumnLook Look{"SFVec3fLayout",
                            "SF3fBoxVSpacing",
                            "SFVec3fLabel",
                            "SFVec3fLine",
                            "SF3fBoxHSpacing",
                            "SF3fBoxHMargin",
                            true};

} // namespace

EdSFVec3fWidget::EdSFVec3fWidget(const char* name)
    : EdSFVectorOf(name, Look, {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")})
{
    setFieldType(SoSFVec3f::getClassTypeId(), name);
}
