// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoPhysicalMaterial.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoPhysicalMaterial, SoNode>;

SoEnumTablePtr SoPhysicalMaterial::getAlphaModeNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"OPAQUE", Opaque}, {"MASK", Mask}, {"BLEND", Blend}});
    return names;
}

void SoPhysicalMaterial::apply(SoState& state) const
{
    state.physicalMaterial = this;
}
