// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoTexture2.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

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

std::string SoTexture2::getFilePath() const
{
    const std::string& path = fileName.getValue().str();
    if (path.empty() || fileName.isIgnored())
        return {};
    return m_folder.empty() || path.front() == '/' ? path : m_folder + '/' + path;
}
