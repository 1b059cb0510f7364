// SPDX-License-Identifier: MIT
#include "reader/GltfMaterials.h"

#include "model/ModelData.h"
#include "reader/PhysicalMaterial.h"

#include <assimp/scene.h>

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr const char* Strength = "KHR_materials_emissive_strength";
constexpr const char* Transform = "KHR_texture_transform";

// Where a material has its pictures, by their use.
constexpr const char* Places[] = {"pbrMetallicRoughness/baseColorTexture",
                                  "pbrMetallicRoughness/metallicRoughnessTexture",
                                  "normalTexture",
                                  "occlusionTexture",
                                  "emissiveTexture",
                                  "extensions/KHR_materials_clearcoat/clearcoatTexture",
                                  "extensions/KHR_materials_clearcoat/clearcoatRoughnessTexture",
                                  "extensions/KHR_materials_clearcoat/clearcoatNormalTexture"};

QJsonObject find(QJsonObject object, const char* place)
{
    for (const QString& name : QString::fromLatin1(place).split(QLatin1Char('/')))
        object = object.value(name).toObject();
    return object;
}

void readStrength(const QJsonObject& material, ModelData::PhysicalSurface& surface)
{
    const QJsonValue strength = find(material, "extensions")
                                    .value(QLatin1String(Strength))
                                    .toObject()
                                    .value(QLatin1String("emissiveStrength"));
    if (strength.isDouble())
        surface.emissiveStrength = static_cast<float>(std::max(0.0, strength.toDouble()));
}

SbVec2f pairOf(const QJsonValue& value, const SbVec2f& otherwise)
{
    const QJsonArray two = value.toArray();
    return two.size() == 2
               ? SbVec2f(static_cast<float>(two[0].toDouble()), static_cast<float>(two[1].toDouble()))
               : otherwise;
}

QJsonObject transformOf(const QJsonObject& texture)
{
    return find(texture, "extensions").value(QLatin1String(Transform)).toObject();
}

// The file counts from a picture's top, the scene from its bottom.
void readTransform(const QJsonObject& texture, ModelData::SurfacePicture& picture)
{
    const QJsonObject transform = transformOf(texture);
    if (transform.isEmpty())
        return;
    const SbVec2f offset = pairOf(transform.value(QLatin1String("offset")), {0, 0});
    const auto angle = static_cast<float>(transform.value(QLatin1String("rotation")).toDouble());
    const SbVec2f scale = pairOf(transform.value(QLatin1String("scale")), {1, 1});
    picture.rotation = angle;
    picture.scaleFactor = scale;
    picture.translation =
        SbVec2f(offset[0] + std::sin(angle) * scale[1], 1 - std::cos(angle) * scale[1] - offset[1]);
}

} // namespace

void takeCoordinateSets(const QJsonObject& text, aiScene& scene)
{
    const QJsonArray materials = text.value(QLatin1String("materials")).toArray();
    const auto count = std::min(static_cast<unsigned>(materials.size()), scene.mNumMaterials);
    for (unsigned i = 0; i < count; ++i) {
        for (int use = 0; use < static_cast<int>(std::size(Places)); ++use) {
            const QJsonValue set =
                transformOf(find(materials.at(static_cast<int>(i)).toObject(), Places[use]))
                    .value(QLatin1String("texCoord"));
            if (set.isDouble())
                setCoordinates(*scene.mMaterials[i], use, std::max(set.toInt(), 0));
        }
    }
}

void readMaterialExtensions(const QJsonObject& text, ModelData& model)
{
    const QJsonArray materials = text.value(QLatin1String("materials")).toArray();
    const auto count = std::min(static_cast<std::size_t>(materials.size()), model.materials.size());
    for (std::size_t i = 0; i < count; ++i) {
        const QJsonObject material = materials.at(static_cast<int>(i)).toObject();
        readStrength(material, model.materials[i].physical);
        for (ModelData::SurfacePicture& picture : model.materials[i].pictures)
            readTransform(find(material, Places[picture.use]), picture);
    }
}

} // namespace scopix
