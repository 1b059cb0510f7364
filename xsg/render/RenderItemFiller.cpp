// SPDX-License-Identifier: MIT
#include <xsg/render/RenderItemFiller.h>

#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoShape.h>

#include <algorithm>

namespace
{

void put(float* four, const SbVec3f& color, float fourth)
{
    std::copy_n(color.getValue(), 3, four);
    four[3] = fourth;
}

template <class Field, class Value>
Value valueOf(const Field& field, const Value& otherwise)
{
    return field.isIgnored() ? otherwise : Value(field.getValue());
}

SbColor baseColorOf(const SoPhysicalMaterial& material)
{
    const bool isSet = !material.baseColor.isIgnored() && material.baseColor.getNum() > 0;
    return isSet ? material.baseColor[0] : SbColor(1, 1, 1);
}

void put(float* four, float first, float second, float third, float fourth)
{
    const float all[] = {first, second, third, fourth};
    std::copy_n(all, 4, four);
}

// What the drawing program of physically based surfaces finds in place of the other materials' colours.
void put(xsg::InstanceData& to, const SoPhysicalMaterial& from)
{
    const auto share = [](const SoSFFloat& field, float otherwise) {
        return std::clamp(valueOf(field, otherwise), 0.0F, 1.0F);
    };
    put(to.diffuse, baseColorOf(from), share(from.opacity, 1));
    put(to.ambient, share(from.metallic, 0), share(from.roughness, 0.5F), share(from.occlusionStrength, 1),
        valueOf(from.alphaCutoff, 0.5F));
    put(to.specular, share(from.clearCoat, 0), share(from.clearCoatRoughness, 0),
        valueOf(from.normalScale, 1.0F), valueOf(from.clearCoatNormalScale, 1.0F));
    put(to.emissive, valueOf(from.emissiveColor, SbColor()) * valueOf(from.emissiveStrength, 1.0F), 1);
}

xsg::GeometryStore::Tangents tangentsFor(const xsg::Surface& surface)
{
    using Tangents = xsg::GeometryStore::Tangents;
    if ((surface.features & xsg::NormalPictures) == 0)
        return Tangents::None;
    for (const xsg::SurfacePicture& picture : *surface.pictures) {
        if ((xsg::pictureFeature(picture.use) & xsg::NormalPictures) != 0)
            return picture.coordinates == 1 ? Tangents::Second : Tangents::First;
    }
    return Tangents::None;
}

} // namespace

void xsg::RenderItemFiller::fill(RenderItem& item, const SoShape& shape, const SoState& state,
                                 const SbMatrix& toWorld)
{
    std::copy_n((shape.getPlacement() * toWorld).getValue(), 16, item.instance.matrix);
    item.box = toWorld.transform(shape.getBox(state));
    if (m_colors)
        fillColored(item, shape, state);
    else if (state.physicalMaterial)
        fillPhysicalSurface(item, shape, state);
    else
        fillSurface(item, shape, state);
}

void xsg::RenderItemFiller::fillSurface(RenderItem& item, const SoShape& shape, const SoState& state)
{
    const SoMaterialState& material = state.material;
    put(item.instance.diffuse, material.diffuse, 1 - std::clamp(material.transparency, 0.0F, 1.0F));
    put(item.instance.ambient, material.ambient, material.shininess);
    put(item.instance.specular, material.specular, 1);
    put(item.instance.emissive, material.emissive, 1);
    item.geometry = m_geometry.get(shape, state);
    GpuTexture* texture = m_textures.get(state.texture, state.textureQuality);
    item.drawState = m_drawStates.use(state, texture);
    item.isTransparent = material.transparency > 0 || (texture && texture->hasAlpha);
}

void xsg::RenderItemFiller::fillPhysicalSurface(RenderItem& item, const SoShape& shape, const SoState& state)
{
    put(item.instance, *state.physicalMaterial);
    const Surface surface = makeSurface(state, m_textures);
    item.geometry = m_geometry.get(shape, state, tangentsFor(surface));
    item.drawState = m_drawStates.use(state, nullptr, surface);
    item.isTransparent = (surface.features & BlendedSurface) != 0;
}

// Partly of its own light, so that the colour can be read on the far side too, and without a texture. What
// the material shows through stays hidden: its cost does not.
void xsg::RenderItemFiller::fillColored(RenderItem& item, const SoShape& shape, const SoState& state)
{
    const SbColor& color = m_colors->get(shape);
    put(item.instance.diffuse, color * 0.4F, 1);
    put(item.instance.ambient, SbColor(), 0);
    put(item.instance.specular, SbColor(), 1);
    put(item.instance.emissive, color * 0.6F, 1);
    item.geometry = m_geometry.get(shape, state);
    item.drawState = m_drawStates.use(state, nullptr);
    item.isTransparent = false;
}
