#include <xsg/nodes/SoTexture2.h>

#include <xsg/actions/SoState.h>
#include <xsg/core/SoTypedImpl.h>

template class SoTyped<SoTexture2, SoNode>;

SoEnumTablePtr SoTexture2::getWrapNames()
{
    static const auto names =
        std::make_shared<const SoEnumTable>(SoEnumTable{{"REPEAT", Repeat}, {"CLAMP", Clamp}});
    return names;
}

SoEnumTablePtr SoTexture2::getModelNames()
{
    static const auto names = std::make_shared<const SoEnumTable>(
        SoEnumTable{{"MODULATE", Modulate}, {"DECAL", Decal}, {"REPLACE", Replace}});
    return names;
}

void SoTexture2::apply(SoState& state) const
{
    state.texture = this;
}
