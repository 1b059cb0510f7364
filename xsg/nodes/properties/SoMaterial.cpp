// SPDX-License-Identifier: MIT
#include <xsg/nodes/properties/SoMaterial.h>

#include <xsg/nodes/base/SoState.h>
#include <xsg/types/SoTypedImpl.h>

template class SoTyped<SoMaterial, SoNode>;

void SoMaterial::apply(SoState& state) const
{
    SoMaterialState& to = state.material;
    state.physicalMaterial = nullptr;
    const auto take = [](const auto& field, auto& value) {
        if (!field.isIgnored())
            value = field.getValue();
    };
    take(ambientColor, to.ambient);
    take(specularColor, to.specular);
    take(emissiveColor, to.emissive);
    take(shininess, to.shininess);
    take(transparency, to.transparency);
    if (!diffuseColor.isIgnored() && diffuseColor.getNum() > 0) {
        to.diffuse = diffuseColor[0];
        to.diffuseNode = this;
    }
}
