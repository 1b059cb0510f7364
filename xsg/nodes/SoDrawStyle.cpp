#include <xsg/nodes/SoDrawStyle.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

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
