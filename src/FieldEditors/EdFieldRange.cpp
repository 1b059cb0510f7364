// SPDX-License-Identifier: MIT
#include "EdFieldRange.h"

#include "EdRangeSettings.h"

#include <xsg/core/SoField.h>
#include <xsg/nodes/lights/SoDirectionalLight.h>
#include <xsg/nodes/properties/SoComplexity.h>
#include <xsg/nodes/properties/SoMaterial.h>

EdRangeComponent rangeOfField(const SoField& field, const char* defaultField)
{
    const SoFieldContainer* container = field.getContainer();
    const auto isIn = [container](SoType type) { return container && container->isOfType(type); };
    const EdRangeSettings settings;
    // One range for the three kinds of node alike, though each has a row of its own (decisions.md:
    // range-shared).
    if (isIn(SoComplexity::getClassTypeId()) || isIn(SoMaterial::getClassTypeId()) ||
        isIn(SoDirectionalLight::getClassTypeId()))
        return settings.getFieldRange("Complexity", "value");
    return settings.getFieldRange("DefaultNode", defaultField);
}
