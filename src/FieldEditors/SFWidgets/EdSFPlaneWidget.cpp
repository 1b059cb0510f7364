// SPDX-License-Identifier: MIT
#include "EdSFPlaneWidget.h"

#include <xsg/fields/SoSFPlane.h>

EdSFPlaneWidget::EdSFPlaneWidget(const char* name)
    : EdSF4fBox(name,
                {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z"), QStringLiteral("distance")})
{
    setFieldType(SoSFPlane::getClassTypeId(), name);
}

EdSFPlaneWidget::Floats EdSFPlaneWidget::read() const
{
    const auto* field = getFieldAs<SoSFPlane>();
    if (!field)
        return {};
    const SbVec3f& normal = field->getValue().getNormal();
    return {normal[0], normal[1], normal[2], field->getValue().getDistanceFromOrigin()};
}

void EdSFPlaneWidget::write(const Floats& numbers)
{
    getFieldAs<SoSFPlane>()->setValue(SbPlane(SbVec3f(numbers.data()), numbers[3]));
}
