// SPDX-License-Identifier: MIT
#include "EdSFRotationWidget.h"

#include <xsg/fields/SoSFRotation.h>

EdSFRotationWidget::EdSFRotationWidget(const char* name)
    : EdSF4fBox(name,
                {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("radians")})
{
    setFieldType(SoSFRotation::getClassTypeId(), name);
}

void EdSFRotationWidget::focusOutEvent(QFocusEvent* /*event*/)
{
    setFocusLeaveEvent();
}

EdSFRotationWidget::Floats EdSFRotationWidget::read() const
{
    const auto* field = getFieldAs<SoSFRotation>();
    if (!field)
        return {};
    SbVec3f axis;
    float radians = 0;
    field->getValue().getValue(axis, radians);
    return {axis[0], axis[1], axis[2], radians};
}

void EdSFRotationWidget::write(const Floats& numbers)
{
    getFieldAs<SoSFRotation>()->setValue(SbRotation(SbVec3f(numbers.data()), numbers[3]));
}
