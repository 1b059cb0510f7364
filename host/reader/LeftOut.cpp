// SPDX-License-Identifier: MIT
#include "reader/LeftOut.h"

#include "reader/AssimpMotion.h"
#include "reader/PhysicalMaterial.h"

#include <assimp/material.h>
#include <assimp/scene.h>

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace scopix
{

namespace
{

constexpr int MostNamed = 5;

QString tr(const char* text)
{
    return QCoreApplication::translate("LeftOut", text);
}

// Adds the sentence for one or for several, with "%1" for how many.
void add(QStringList& sentences, unsigned count, const char* one, const char* several)
{
    if (count > 0)
        sentences += count == 1 ? tr(one) : tr(several).arg(count);
}

struct MapKind {
    std::vector<aiTextureType> types;
    const char* one;
    const char* several;
};

const std::vector<MapKind>& mapKinds()
{
    static const std::vector<MapKind> kinds{
        {{aiTextureType_NORMALS, aiTextureType_NORMAL_CAMERA},
         "The normal map of 1 material is left out.",
         "The normal maps of %1 materials are left out."},
        {{aiTextureType_EMISSIVE, aiTextureType_EMISSION_COLOR},
         "The emissive map of 1 material is left out.",
         "The emissive maps of %1 materials are left out."},
        {{aiTextureType_METALNESS, aiTextureType_DIFFUSE_ROUGHNESS, aiTextureType_UNKNOWN},
         "The map of metal and roughness of 1 material is left out.",
         "The maps of metal and roughness of %1 materials are left out."},
        {{aiTextureType_LIGHTMAP, aiTextureType_AMBIENT_OCCLUSION},
         "The occlusion map of 1 material is left out.",
         "The occlusion maps of %1 materials are left out."},
        {{aiTextureType_HEIGHT, aiTextureType_DISPLACEMENT},
         "The bump map of 1 material is left out.",
         "The bump maps of %1 materials are left out."},
        {{aiTextureType_SPECULAR, aiTextureType_SHININESS},
         "The specular map of 1 material is left out.",
         "The specular maps of %1 materials are left out."},
        {{aiTextureType_OPACITY, aiTextureType_TRANSMISSION},
         "The opacity map of 1 material is left out.",
         "The opacity maps of %1 materials are left out."},
        {{aiTextureType_REFLECTION},
         "The reflection map of 1 material is left out.",
         "The reflection maps of %1 materials are left out."}};
    return kinds;
}

aiString pathOf(const aiMaterial& material, aiTextureType type)
{
    aiString path;
    material.GetTexture(type, 0, &path);
    return path;
}

// The picture of the surface, which is there, may be named for other uses again.
bool hasMap(const aiMaterial& material, const MapKind& kind)
{
    return std::any_of(kind.types.begin(), kind.types.end(), [&](aiTextureType type) {
        const aiString path = pathOf(material, type);
        return path.length > 0 && !keepsPicture(material, path) &&
               !(path == pathOf(material, aiTextureType_DIFFUSE)) &&
               !(path == pathOf(material, aiTextureType_BASE_COLOR));
    });
}

template <class Thing, class Counts>
unsigned sumOf(Thing* const* things, unsigned count, Counts counts)
{
    unsigned sum = 0;
    std::for_each(things, things + count, [&](const Thing* thing) { sum += counts(*thing); });
    return sum;
}

QString named(const QStringList& names)
{
    QStringList shown;
    for (const QString& name : names.mid(0, MostNamed))
        shown += tr("“%1”").arg(name);
    if (names.size() > MostNamed)
        shown += tr("…");
    return shown.join(QStringLiteral(", "));
}

QStringList missing(const QStringList& names, const char* one, const char* several)
{
    if (names.isEmpty())
        return {};
    return {names.size() == 1 ? tr(one).arg(named(names))
                              : tr(several).arg(QString::number(names.size()), named(names))};
}

} // namespace

QStringList partsLeftOut(const aiScene& scene)
{
    QStringList sentences;
    add(sentences, countTracksLeftOut(scene),
        "1 track of an animation moves what there is no node for, and is left out.",
        "%1 tracks of animations move what there are no nodes for, and are left out.");
    add(sentences, countMovedLights(scene), "The movement of 1 light is left out.",
        "The movements of %1 lights are left out.");
    for (const MapKind& kind : mapKinds())
        add(sentences,
            sumOf(scene.mMaterials, scene.mNumMaterials,
                  [&](const aiMaterial& material) { return hasMap(material, kind) ? 1U : 0U; }),
            kind.one, kind.several);
    add(sentences, sumOf(scene.mMaterials, scene.mNumMaterials, countWithoutCoordinates),
        "1 picture is left out, whose material has two other texture coordinates already.",
        "%1 pictures are left out, whose materials have two other texture coordinates already.");
    const auto countValues = [&](const char* key, unsigned type, unsigned index) {
        return sumOf(scene.mMaterials, scene.mNumMaterials, [&](const aiMaterial& material) {
            aiColor4D value;
            const bool isThere = material.Get(key, type, index, value) == aiReturn_SUCCESS;
            return isThere && (value.r > 0 || value.g > 0 || value.b > 0) ? 1U : 0U;
        });
    };
    add(sentences, countValues(AI_MATKEY_SHEEN_COLOR_FACTOR), "The sheen of 1 material is left out.",
        "The sheen of %1 materials is left out.");
    add(sentences, countValues(AI_MATKEY_TRANSMISSION_FACTOR),
        "The transmission of 1 material is shown as transparency.",
        "The transmission of %1 materials is shown as transparency.");
    return sentences;
}

QStringList missingMaterialFiles(const QStringList& names)
{
    return missing(names, "1 file of materials is missing, so that default ones are used: %1.",
                   "%1 files of materials are missing, so that default ones are used: %2.");
}

QStringList missingPictures(const QStringList& names)
{
    return missing(names, "1 picture is missing or cannot be read, and is left out: %1.",
                   "%1 pictures are missing or cannot be read, and are left out: %2.");
}

} // namespace scopix
