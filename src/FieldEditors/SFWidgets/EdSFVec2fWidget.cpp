// SPDX-License-Identifier: MIT
#include "EdSFVec2fWidget.h"

namespace
{

constexpr EdColumnLook Look{
    "SFVec2fLayout", "SF2BoxVSpacing", "SFVec2fLabel", "SFVec2fBox", "SF2BoxHSpacing", "SF2BoxHMargin", true};

} // namespace

EdSFVec2fWidget::EdSFVec2fWidget(const char* name)
    : EdSFVectorOf(name, Look, {QStringLiteral("x"), QStringLiteral("y")})
{
    setFieldType(SoSFVec2f::getClassTypeId(), name);
}
