// SPDX-License-Identifier: MIT
#include <xsg/render/RenderItemFiller.h>

#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>

namespace
{

void put(float* four, const SbVec3f& color, float fourth)
{
    std::copy_n(color.getValue(), 3, four);
    four[3] = fourth;
}

} // namespace

void xsg::RenderItemFiller::fill(RenderItem& item, const SoShape& shape, const SoState& state,
                                 const SbMatrix& toWorld)
{
    const SoMaterialState& material = state.material;
    std::copy_n((shape.getPlacement() * toWorld).getValue(), 16, item.instance.matrix);
    put(item.instance.diffuse, material.diffuse, 1 - std::clamp(material.transparency, 0.0F, 1.0F));
    put(item.instance.ambient, material.ambient, material.shininess);
    put(item.instance.specular, material.specular, 1);
    put(item.instance.emissive, material.emissive, 1);
    item.box = toWorld.transform(shape.getBox(state));
    item.geometry = m_geometry.get(shape, state);
    GpuTexture* texture = m_textures.get(state.texture, state.textureQuality);
    item.drawState = m_drawStates.use(state, texture);
    item.isTransparent = material.transparency > 0 || (texture && texture->hasAlpha);
}
