// SPDX-License-Identifier: MIT
#include "import/PhysicalMaterials.h"

#include "text/NodeText.h"

#include <xsg/nodes/groups/SoGroup.h>
#include <xsg/nodes/lights/SoEnvironmentLight.h>
#include <xsg/nodes/properties/SoMaterialTexture.h>

#include <QFileInfo>

namespace scopix
{

namespace
{

void setName(SoNode& node, const QString& name)
{
    if (!name.isEmpty())
        node.setName(toName(name));
}

template <class Items>
auto& at(Items& items, int place)
{
    return items[static_cast<std::size_t>(place)];
}

} // namespace

PhysicalMaterials::PhysicalMaterials(ModelData& model)
    : m_model(model)
    , m_materials(model.materials.size())
    , m_wanted(model.pictures.size())
{
    for (const ModelData::Material& material : model.materials) {
        m_areAny = m_areAny || material.physical.isPhysical != 0;
        for (const ModelData::SurfacePicture& each : material.pictures) {
            if (each.picture >= 0 && m_pictures.emplace(keyOf(each), nullptr).second)
                ++at(m_wanted, each.picture);
        }
    }
}

PhysicalMaterials::Key PhysicalMaterials::keyOf(const ModelData::SurfacePicture& p)
{
    return {p.picture,        p.use,      p.coordinates,    p.clampS,        p.clampT, p.translation[0],
            p.translation[1], p.rotation, p.scaleFactor[0], p.scaleFactor[1]};
}

void PhysicalMaterials::addTo(SoGroup& group, int place, ModelData::Mesh& mesh)
{
    const ModelData::Material& material = at(m_model.materials, place);
    if (mesh.colors.empty()) {
        SoRef<SoPhysicalMaterial>& node = at(m_materials, place);
        if (!node)
            node = SoRef<SoPhysicalMaterial>(make(material));
        group.addChild(node.get());
    } else {
        SoPhysicalMaterial* node = make(material);
        group.addChild(node);
        const SbColor& base = material.physical.baseColor;
        for (SbVec3f& color : mesh.colors)
            color = SbVec3f(color[0] * base[0], color[1] * base[1], color[2] * base[2]);
        node->baseColor.setValues(std::move(mesh.colors));
    }
    addPictures(group, material, mesh);
}

SoPhysicalMaterial* PhysicalMaterials::make(const ModelData::Material& material) const
{
    const ModelData::PhysicalSurface& from = material.physical;
    auto* node = new SoPhysicalMaterial;
    setName(*node, QString::fromStdString(material.name));
    node->baseColor.setValues({from.baseColor});
    node->metallic.setValue(from.metallic);
    node->roughness.setValue(from.roughness);
    node->emissiveColor.setValue(from.emissive);
    node->emissiveStrength.setValue(from.emissiveStrength);
    node->normalScale.setValue(from.normalScale);
    node->occlusionStrength.setValue(from.occlusionStrength);
    node->clearCoat.setValue(from.clearCoat);
    node->clearCoatRoughness.setValue(from.clearCoatRoughness);
    node->clearCoatNormalScale.setValue(from.clearCoatNormalScale);
    node->alphaMode.setValue(from.alphaMode);
    node->opacity.setValue(from.opacity);
    node->alphaCutoff.setValue(from.alphaCutoff);
    return node;
}

void PhysicalMaterials::addPictures(SoGroup& group, const ModelData::Material& material,
                                    const ModelData::Mesh& mesh)
{
    for (const ModelData::SurfacePicture& picture : material.pictures) {
        const auto& coordinates =
            picture.coordinates == 0 ? mesh.textureCoordinates : mesh.secondTextureCoordinates;
        SoTexture2* node = coordinates.empty() || picture.picture < 0 ? nullptr : pictureNode(picture);
        if (node)
            group.addChild(node);
    }
}

SoTexture2* PhysicalMaterials::pictureNode(const ModelData::SurfacePicture& picture)
{
    SoRef<SoTexture2>& node = m_pictures[keyOf(picture)];
    ModelData::Picture& from = at(m_model.pictures, picture.picture);
    if (node || from.bytes.empty())
        return node.get();
    const bool isMoved =
        picture.translation != SbVec2f(0, 0) || picture.scaleFactor != SbVec2f(1, 1) || picture.rotation != 0;
    if (picture.use == SoMaterialTexture::BaseColor && picture.coordinates == 0 && !isMoved) {
        node = SoRef<SoTexture2>(new SoTexture2);
    } else {
        auto* own = new SoMaterialTexture;
        node = SoRef<SoTexture2>(own);
        own->use.setValue(picture.use);
        own->coordinates.setValue(picture.coordinates);
        own->translation.setValue(picture.translation);
        own->rotation.setValue(picture.rotation);
        own->scaleFactor.setValue(picture.scaleFactor);
    }
    setName(*node, QFileInfo(QString::fromStdString(from.name)).completeBaseName());
    node->image.setValue(from.width, from.height, from.components, from.bytes.data());
    node->wrapS.setValue(picture.clampS != 0 ? SoTexture2::Clamp : SoTexture2::Repeat);
    node->wrapT.setValue(picture.clampT != 0 ? SoTexture2::Clamp : SoTexture2::Repeat);
    if (--at(m_wanted, picture.picture) == 0)
        std::vector<unsigned char>().swap(from.bytes); // the nodes have their own
    return node.get();
}

SoNode* PhysicalMaterials::makeSurroundings(bool hasLights)
{
    constexpr float Filling = 0.4F;
    auto* light = new SoEnvironmentLight;
    if (hasLights)
        light->intensity.setValue(Filling);
    return light;
}

} // namespace scopix
