// SPDX-License-Identifier: MIT
#include "reader/LeftOut.h"

#include "reader/AssimpMotion.h"
#include "reader/MaterialLosses.h"
#include "reader/PhysicalMaterial.h"
#include "reader/Sentences.h"

#include <assimp/material.h>
#include <assimp/scene.h>

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <vector>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("LeftOut", text);
}

void add(QStringList& sentences, unsigned count, const char* one, const char* several)
{
    addCounted(sentences, count, tr(one), tr(several));
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
         QT_TRANSLATE_NOOP("LeftOut", "The normal map of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The normal maps of %1 materials are left out.")},
        {{aiTextureType_EMISSIVE, aiTextureType_EMISSION_COLOR},
         QT_TRANSLATE_NOOP("LeftOut", "The emissive map of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The emissive maps of %1 materials are left out.")},
        {{aiTextureType_METALNESS, aiTextureType_DIFFUSE_ROUGHNESS, aiTextureType_UNKNOWN},
         QT_TRANSLATE_NOOP("LeftOut", "The map of metal and roughness of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The maps of metal and roughness of %1 materials are left out.")},
        {{aiTextureType_LIGHTMAP, aiTextureType_AMBIENT_OCCLUSION},
         QT_TRANSLATE_NOOP("LeftOut", "The occlusion map of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The occlusion maps of %1 materials are left out.")},
        {{aiTextureType_HEIGHT, aiTextureType_DISPLACEMENT},
         QT_TRANSLATE_NOOP("LeftOut", "The bump map of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The bump maps of %1 materials are left out.")},
        {{aiTextureType_SPECULAR, aiTextureType_SHININESS},
         QT_TRANSLATE_NOOP("LeftOut", "The specular map of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The specular maps of %1 materials are left out.")},
        {{aiTextureType_OPACITY, aiTextureType_TRANSMISSION},
         QT_TRANSLATE_NOOP("LeftOut", "The opacity map of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The opacity maps of %1 materials are left out.")},
        {{aiTextureType_REFLECTION},
         QT_TRANSLATE_NOOP("LeftOut", "The reflection map of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The reflection maps of %1 materials are left out.")}};
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

QStringList missing(const QStringList& names, const char* one, const char* several)
{
    if (names.isEmpty())
        return {};
    return {names.size() == 1 ? tr(one).arg(quoted(names))
                              : tr(several).arg(QString::number(names.size()), quoted(names))};
}

unsigned countUnusedCoordinates(const aiScene& scene, const aiMesh& mesh)
{
    const std::array<int, 2> used = coordinatesOf(*scene.mMaterials[mesh.mMaterialIndex]);
    unsigned count = 0;
    for (int i = 0; i < AI_MAX_NUMBER_OF_TEXTURECOORDS; ++i)
        count += mesh.mTextureCoords[i] && i != used[0] && i != used[1] ? 1 : 0;
    return count;
}

bool hasFurtherColors(const aiMesh& mesh)
{
    return mesh.GetNumColorChannels() > 1;
}

bool hasTransparentPoints(const aiMesh& mesh)
{
    return mesh.mColors[0] && std::any_of(mesh.mColors[0], mesh.mColors[0] + mesh.mNumVertices,
                                          [](const aiColor4D& color) { return color.a < 1; });
}

void addMeshes(QStringList& sentences, const aiScene& scene)
{
    const auto sum = [&](auto counts) { return sumOf(scene.mMeshes, scene.mNumMeshes, counts); };
    add(sentences, sum([&](const aiMesh& mesh) { return countUnusedCoordinates(scene, mesh); }),
        QT_TRANSLATE_NOOP("LeftOut", "1 list of texture coordinates is left out, which no picture uses."),
        QT_TRANSLATE_NOOP("LeftOut", "%1 lists of texture coordinates are left out, which no picture uses."));
    add(sentences, sum([](const aiMesh& mesh) { return hasFurtherColors(mesh) ? 1U : 0U; }),
        QT_TRANSLATE_NOOP("LeftOut", "The further colours of the points of 1 mesh are left out."),
        QT_TRANSLATE_NOOP("LeftOut", "The further colours of the points of %1 meshes are left out."));
    add(sentences, sum([](const aiMesh& mesh) { return hasTransparentPoints(mesh) ? 1U : 0U; }),
        QT_TRANSLATE_NOOP("LeftOut", "How transparent the points of 1 mesh are is left out."),
        QT_TRANSLATE_NOOP("LeftOut", "How transparent the points of %1 meshes are is left out."));
}

void addLights(QStringList& sentences, const aiScene& scene)
{
    const auto sum = [&](aiLightSourceType type) {
        return sumOf(scene.mLights, scene.mNumLights,
                     [type](const aiLight& light) { return light.mType == type ? 1U : 0U; });
    };
    add(sentences, sum(aiLightSource_AREA),
        QT_TRANSLATE_NOOP("LeftOut", "1 light with an area shines from its middle."),
        QT_TRANSLATE_NOOP("LeftOut", "%1 lights with an area shine from their middles."));
    add(sentences, sum(aiLightSource_UNDEFINED),
        QT_TRANSLATE_NOOP("LeftOut", "1 light is left out, whose kind is not known here."),
        QT_TRANSLATE_NOOP("LeftOut", "%1 lights are left out, whose kind is not known here."));
}

} // namespace

QStringList partsLeftOut(const aiScene& scene)
{
    QStringList sentences;
    add(sentences, countTracksLeftOut(scene),
        QT_TRANSLATE_NOOP("LeftOut",
                          "1 track of an animation moves what there is no node for, and is left out."),
        QT_TRANSLATE_NOOP("LeftOut",
                          "%1 tracks of animations move what there are no nodes for, and are left out."));
    add(sentences, countMovedLights(scene),
        QT_TRANSLATE_NOOP("LeftOut", "The movement of 1 light is left out."),
        QT_TRANSLATE_NOOP("LeftOut", "The movements of %1 lights are left out."));
    add(sentences, countMovedCameras(scene),
        QT_TRANSLATE_NOOP("LeftOut", "1 camera moves, and what is seen through it stays."),
        QT_TRANSLATE_NOOP("LeftOut", "%1 cameras move, and what is seen through them stays."));
    for (const MapKind& kind : mapKinds())
        add(sentences,
            sumOf(scene.mMaterials, scene.mNumMaterials,
                  [&](const aiMaterial& material) { return hasMap(material, kind) ? 1U : 0U; }),
            kind.one, kind.several);
    add(sentences, sumOf(scene.mMaterials, scene.mNumMaterials, countWithoutCoordinates),
        QT_TRANSLATE_NOOP("LeftOut",
                          "1 picture is left out, whose material has two other texture coordinates already."),
        QT_TRANSLATE_NOOP(
            "LeftOut",
            "%1 pictures are left out, whose materials have two other texture coordinates already."));
    addMeshes(sentences, scene);
    addLights(sentences, scene);
    sentences += materialLosses(scene);
    return sentences;
}

QStringList missingMaterialFiles(const QStringList& names)
{
    return missing(
        names,
        QT_TRANSLATE_NOOP("LeftOut", "1 file of materials is missing, so that default ones are used: %1."),
        QT_TRANSLATE_NOOP("LeftOut",
                          "%1 files of materials are missing, so that default ones are used: %2."));
}

QStringList missingPictures(const QStringList& names)
{
    return missing(
        names, QT_TRANSLATE_NOOP("LeftOut", "1 picture is missing or cannot be read, and is left out: %1."),
        QT_TRANSLATE_NOOP("LeftOut", "%1 pictures are missing or cannot be read, and are left out: %2."));
}

} // namespace scopix
