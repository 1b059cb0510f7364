// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoFog.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoFog, SoNode>;

SoEnumTablePtr SoFog::getKindNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"EVEN", Linear}, {"THICKENING", Exp}, {"SUDDEN", Exp2}, {"NONE", None}});
    return names;
}

void SoFog::apply(SoState& state) const
{
    state.fog = kind.getValue() == None ? nullptr : this;
}
