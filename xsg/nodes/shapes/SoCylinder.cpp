// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoCylinder.h>

#include <xsg/nodes/shapes/SolidBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoCylinder, SoSolid>;

SoEnumTablePtr SoCylinder::getPartNames()
{
    static const auto names =
        std::make_shared<const SoEnumTable>(SoEnumTable{{"SIDES", Sides}, {"TOP", Top}, {"BOTTOM", Bottom}});
    return names;
}

SbVec3f SoCylinder::getExtent() const
{
    return {radius.getValue(), height.getValue() * 0.5F, radius.getValue()};
}

SoGeometryKey SoCylinder::getGeometryKey(const SoState& state) const
{
    return makeKey(getSegments(state), parts.getValue() & All);
}

void SoCylinder::generate(const SoState& state, SoGeometry& geometry) const
{
    const int segments = getSegments(state);
    if (parts.getValue() & Sides)
        xsg::turn(geometry, {{-1, 1, {1, 0}, 0}, {1, 1, {1, 0}, 1}}, segments);
    if (parts.getValue() & Top)
        xsg::disc(geometry, 1, true, segments);
    if (parts.getValue() & Bottom)
        xsg::disc(geometry, -1, false, segments);
}
