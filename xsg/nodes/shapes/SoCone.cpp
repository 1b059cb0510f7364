// SPDX-License-Identifier: MIT
#include <xsg/nodes/shapes/SoCone.h>

#include <xsg/nodes/shapes/SolidBuilder.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoCone, SoSolid>;

SoEnumTablePtr SoCone::getPartNames()
{
    static const auto names =
        std::make_shared<const SoEnumTable>(SoEnumTable{{"SIDES", Sides}, {"BOTTOM", Bottom}});
    return names;
}

SbVec3f SoCone::getExtent() const
{
    return {bottomRadius.getValue(), height.getValue() * 0.5F, bottomRadius.getValue()};
}

SoGeometryKey SoCone::getGeometryKey(const SoState& state) const
{
    return makeKey(getSegments(state), parts.getValue() & All);
}

void SoCone::generate(const SoState& state, SoGeometry& geometry) const
{
    const int segments = getSegments(state);
    if (parts.getValue() & Sides) {
        const SbVec2f normal = SbVec2f(2, 1).normalized(); // of a cone twice as high as its radius
        xsg::turn(geometry, {{-1, 1, normal, 0}, {1, 0, normal, 1}}, segments);
    }
    if (parts.getValue() & Bottom)
        xsg::disc(geometry, -1, false, segments);
}
