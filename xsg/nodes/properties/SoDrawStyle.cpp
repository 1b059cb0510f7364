// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoDrawStyle.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoDrawStyle, SoNode>;

SoEnumTablePtr SoDrawStyle::getStyleNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"FILLED", Filled}, {"LINES", Lines}, {"POINTS", Points}, {"INVISIBLE", Invisible}});
    return names;
}

void SoDrawStyle::apply(SoState& state) const
{
    state.drawStyle = this;
}
