// SPDX-License-Identifier: MIT
#include "export/MaterialTable.h"

#include "export/ColorEncoding.h"
#include "export/ExportNames.h"

#include <xsg/nodes/base/SoNode.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>
#include <xsg/nodes/shapes/SoVertexShape.h>

namespace scopix
{

namespace
{

bool hasColors(const SoShape& shape)
{
    const auto* corners = dynamic_cast<const SoVertexShape*>(&shape);
    return corners && corners->colorBinding.getValue() != SoVertexShape::Overall;
}

// What formats keep that know of colours and highlights only.
SoMaterialState lookOf(const SoPhysicalMaterial& material)
{
    SoMaterialState look;
    const SbColor base = toShown(material.baseColor.getNum() > 0 ? material.baseColor[0] : SbColor(1, 1, 1));
    const float metallic = material.metallic.getValue();
    constexpr float Dielectric = 0.2F; // as it is shown
    look.diffuse = base * (1 - metallic);
    look.ambient = look.diffuse;
    look.specular = SbColor(Dielectric, Dielectric, Dielectric) * (1 - metallic) + base * metallic;
    look.emissive = toShown(material.emissiveColor.getValue());
    look.shininess = 1 - material.roughness.getValue();
    if (material.alphaMode.getValue() == SoPhysicalMaterial::Blend)
        look.transparency = 1 - material.opacity.getValue();
    return look;
}

} // namespace

std::size_t MaterialTable::placeOf(const SoState& state, const SoShape& shape)
{
    ExportedMaterial material;
    material.physical = state.physicalMaterial;
    material.look = material.physical ? lookOf(*material.physical) : state.material;
    material.texture = state.texture;
    if (material.physical && state.materialTextures)
        material.textures = *state.materialTextures;
    material.isColored = hasColors(shape);
    const SoPhysicalMaterial* physical = firstLike(material.physical, material.isColored);
    const SoMaterialState& look = material.look;
    const auto numbers = [](const SbColor& c) { return Color{c[0], c[1], c[2]}; };
    const Key key{
        numbers(look.ambient), numbers(look.diffuse), numbers(look.specular), numbers(look.emissive),
        look.shininess,        look.transparency,     state.texture,          physical,
        material.textures,     material.isColored};
    const auto [place, isNew] = m_places.emplace(key, m_all.size());
    if (isNew) {
        material.name = newName();
        m_all.push_back(std::move(material));
    }
    return place->second;
}

// Of the nodes with the same values, the one that was met first. The colours of a coloured shape are its own.
const SoPhysicalMaterial* MaterialTable::firstLike(const SoPhysicalMaterial* material, bool isColored)
{
    if (!material)
        return nullptr;
    const auto [known, isNew] = m_firstLike.emplace(std::make_pair(material, isColored), material);
    if (isNew) {
        std::string values(1, isColored ? 'c' : ' ');
        for (int i = 0; i < material->getFieldData()->getNumFields(); ++i) {
            const SoField* field = material->getFieldData()->getField(material, i);
            SbString text;
            if (!isColored || field != &material->baseColor)
                field->get(text);
            values.append(text.getString()).append("\n");
        }
        known->second = m_firstOfValues.emplace(values, material).first->second;
    }
    return known->second;
}

// A material without one is named by its place.
std::string MaterialTable::newName()
{
    std::string name = m_node ? exportedName(*m_node) : std::string();
    for (char& c : name)
        c = c <= ' ' && c >= 0 ? '_' : c;
    const std::string number = std::to_string(m_all.size() + 1);
    if (name.empty() || !m_names.insert(name).second)
        name = (name.empty() ? "material" : name) + '_' + number;
    m_names.insert(name);
    return name;
}

} // namespace scopix
