#include <xsg/nodes/SoFog.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoFog, SoNode>;

SoEnumTablePtr SoFog::getKindNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"EVEN", Even}, {"THICKENING", Thickening}, {"SUDDEN", Sudden}, {"NONE", None}});
    return names;
}

void SoFog::apply(SoState& state) const
{
    state.fog = kind.getValue() == None ? nullptr : this;
}
