// SPDX-License-Identifier: MIT
#include "reader/MaterialLosses.h"

#include "reader/Opacity.h"
#include "reader/Sentences.h"

#include <assimp/material.h>
#include <assimp/scene.h>

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <cstring>
#include <set>
#include <vector>

namespace scopix
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("LeftOut", text);
}

using Property = aiMaterialProperty;

// Of a color its largest component.
float numberOf(const aiMaterial& material, const Property& property)
{
    ai_real numbers[4] = {};
    unsigned count = 3;
    const bool isKnown = material.Get(property.mKey.C_Str(), property.mSemantic, property.mIndex, numbers,
                                      &count) == aiReturn_SUCCESS;
    return isKnown ? static_cast<float>(*std::max_element(numbers, numbers + std::min(count, 3U))) : 0;
}

float numberOf(const aiMaterial& material, const char* key)
{
    const Property* property = nullptr;
    return aiGetMaterialProperty(&material, key, 0, 0, &property) == aiReturn_SUCCESS
               ? numberOf(material, *property)
               : 0;
}

bool isNotZero(const aiMaterial& material, const Property& property)
{
    return numberOf(material, property) != 0;
}

// Where the file does not say which colour is mirrored, all is.
bool isMirroring(const aiMaterial& material, const Property& property)
{
    const Property* color = nullptr;
    const bool isColored =
        aiGetMaterialProperty(&material, AI_MATKEY_COLOR_REFLECTIVE, &color) == aiReturn_SUCCESS;
    return numberOf(material, property) > 0 && (!isColored || numberOf(material, *color) > 0);
}

// Neither what vacuum does nor what is said where nothing is known.
bool isRefracting(const aiMaterial& material, const Property& property)
{
    constexpr float Usual = 1.5F; // of a physically based surface
    const float index = numberOf(material, property);
    return index != 0 && index != 1 && index != Usual;
}

bool isTinted(const aiMaterial& material, const Property& property)
{
    ai_real c[4] = {};
    unsigned count = 3;
    material.Get(property.mKey.C_Str(), property.mSemantic, property.mIndex, c, &count);
    return c[0] != c[1] || c[1] != c[2];
}

bool isWeakened(const aiMaterial& material, const Property& property)
{
    return numberOf(material, property) != 1 && numberOf(material, "$clr.specular") > 0;
}

bool isUnlit(const aiMaterial& material, const Property& /*property*/)
{
    int model = 0;
    return material.Get(AI_MATKEY_SHADING_MODEL, model) == aiReturn_SUCCESS && model == aiShadingMode_Unlit;
}

bool isGlossyMetal(const aiMaterial& material, const Property& /*property*/)
{
    return numberOf(material, "$clr.specular") > 0;
}

bool isInvisible(const aiMaterial& material, const Property& /*property*/)
{
    return isSaidInvisible(material);
}

struct Loss {
    const char* key;
    bool (*matters)(const aiMaterial& material, const Property& property);
    const char* one;
    const char* several;
};

const std::vector<Loss>& losses()
{
    static const std::vector<Loss> all{
        {"$mat.opacity", isInvisible,
         QT_TRANSLATE_NOOP("LeftOut", "1 material, of which nothing would be seen, is shown opaque."),
         QT_TRANSLATE_NOOP("LeftOut", "%1 materials, of which nothing would be seen, are shown opaque.")},
        {"$mat.shadingm", isUnlit,
         QT_TRANSLATE_NOOP("LeftOut", "1 material is to be shown without light, and is lit."),
         QT_TRANSLATE_NOOP("LeftOut", "%1 materials are to be shown without light, and are lit.")},
        {"$mat.wireframe", isNotZero,
         QT_TRANSLATE_NOOP("LeftOut", "1 material is to be drawn as lines, and is drawn as a surface."),
         QT_TRANSLATE_NOOP("LeftOut", "%1 materials are to be drawn as lines, and are drawn as surfaces.")},
        {"$mat.blend", isNotZero,
         QT_TRANSLATE_NOOP("LeftOut", "The blending of 1 material, which adds light, is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The blending of %1 materials, which adds light, is left out.")},
        {"$mat.refracti", isRefracting,
         QT_TRANSLATE_NOOP("LeftOut", "The refraction of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The refraction of %1 materials is left out.")},
        {"$mat.reflectivity", isMirroring,
         QT_TRANSLATE_NOOP("LeftOut", "The reflectivity of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The reflectivity of %1 materials is left out.")},
        {"$clr.transparent", isTinted,
         QT_TRANSLATE_NOOP("LeftOut", "The colour of what shines through 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The colour of what shines through %1 materials is left out.")},
        {"$mat.shinpercent", isWeakened,
         QT_TRANSLATE_NOOP("LeftOut", "How strong the highlights of 1 material are is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "How strong the highlights of %1 materials are is left out.")},
        {"$mat.anisotropyFactor", isNotZero,
         QT_TRANSLATE_NOOP("LeftOut", "The anisotropy of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The anisotropy of %1 materials is left out.")},
        {"$mat.glossinessFactor", isGlossyMetal,
         QT_TRANSLATE_NOOP("LeftOut", "The colour of the highlights of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The colour of the highlights of %1 materials is left out.")},
        {"$mat.specularFactor", isWeakened,
         QT_TRANSLATE_NOOP("LeftOut", "How strong the highlights of 1 material are is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "How strong the highlights of %1 materials are is left out.")},
        {"$mat.volume.thicknessFactor", isNotZero,
         QT_TRANSLATE_NOOP("LeftOut", "The volume of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The volume of %1 materials is left out.")},
        {"$tex.mapping", isNotZero,
         QT_TRANSLATE_NOOP(
             "LeftOut",
             "How 1 material lays its pictures on is left out: they follow the texture coordinates."),
         QT_TRANSLATE_NOOP(
             "LeftOut",
             "How %1 materials lay their pictures on is left out: they follow the texture coordinates.")},
        {"$clr.sheen.factor", isNotZero, QT_TRANSLATE_NOOP("LeftOut", "The sheen of 1 material is left out."),
         QT_TRANSLATE_NOOP("LeftOut", "The sheen of %1 materials is left out.")},
        {"$mat.transmission.factor", isNotZero,
         QT_TRANSLATE_NOOP("LeftOut", "The transmission of 1 material is shown as transparency."),
         QT_TRANSLATE_NOOP("LeftOut", "The transmission of %1 materials is shown as transparency.")}};
    return all;
}

// What is shown, what only goes with something above or with maps, which are counted of themselves, and the
// bare settings of some programs, which others of these keys say as well.
const char* const Known[] = {"?mat.name",
                             "$clr.ambient",
                             "$clr.base",
                             "$clr.diffuse",
                             "$clr.emissive",
                             "$clr.reflective",
                             "$clr.specular",
                             "$mat.blend.",
                             "$mat.bumpscaling",
                             "$mat.clearcoat.",
                             "$mat.displacementscaling",
                             "$mat.emissiveIntensity",
                             "$mat.gltf.",
                             "$mat.illum",
                             "$mat.metallicFactor",
                             "$mat.roughnessFactor",
                             "$mat.sheen.",
                             "$mat.shininess",
                             "$mat.transparencyfactor",
                             "$mat.twosided",
                             "$mat.use",
                             "$mat.volume.",
                             "$raw.",
                             "$tex.file",
                             "$tex.map",
                             "$tex.scale",
                             "$tex.strength",
                             "$tex.uvtrafo",
                             "$tex.uvwsrc",
                             "$tex.op",
                             "$tex.flags",
                             "$tex.blend",
                             "?bg.global",
                             "?sh."};

// Those that end in a full stop or belong to others begin the names of all of a kind.
bool isKnown(const char* key)
{
    return std::any_of(std::begin(Known), std::end(Known), [key](const char* known) {
        return std::strncmp(key, known, std::strlen(known)) == 0;
    });
}

bool has(const aiMaterial& material, const Loss& loss)
{
    const auto matters = [&](const Property* property) {
        return std::strcmp(property->mKey.C_Str(), loss.key) == 0 && loss.matters(material, *property);
    };
    return std::any_of(material.mProperties, material.mProperties + material.mNumProperties, matters);
}

// Points and lines show nothing but a colour.
std::vector<const aiMaterial*> materialsOfSurfaces(const aiScene& scene)
{
    std::set<unsigned> places;
    for (unsigned i = 0; i < scene.mNumMeshes; ++i) {
        if (scene.mMeshes[i]->mPrimitiveTypes & (aiPrimitiveType_TRIANGLE | aiPrimitiveType_POLYGON))
            places.insert(scene.mMeshes[i]->mMaterialIndex);
    }
    std::vector<const aiMaterial*> materials;
    for (const unsigned place : places)
        materials.push_back(scene.mMaterials[place]);
    return materials;
}

QStringList unknownKeys(const std::vector<const aiMaterial*>& materials)
{
    QSet<QString> keys;
    for (const aiMaterial* material : materials) {
        for (unsigned k = 0; k < material->mNumProperties; ++k) {
            const char* key = material->mProperties[k]->mKey.C_Str();
            const bool isLoss = std::any_of(losses().begin(), losses().end(), [key](const Loss& loss) {
                return std::strcmp(key, loss.key) == 0;
            });
            if (!isLoss && !isKnown(key))
                keys.insert(QString::fromUtf8(key));
        }
    }
    QStringList sorted = keys.values();
    sorted.sort();
    return sorted;
}

} // namespace

QStringList materialLosses(const aiScene& scene)
{
    const std::vector<const aiMaterial*> materials = materialsOfSurfaces(scene);
    QStringList sentences;
    for (const Loss& loss : losses()) {
        const auto count = std::count_if(materials.begin(), materials.end(),
                                         [&](const aiMaterial* material) { return has(*material, loss); });
        addCounted(sentences, static_cast<unsigned>(count), tr(loss.one), tr(loss.several));
    }
    const QStringList unknown = unknownKeys(materials);
    addCounted(sentences, static_cast<unsigned>(unknown.size()),
               tr("1 property of materials is not known here and left out: %1.").arg(quoted(unknown)),
               tr("%1 properties of materials are not known here and left out: %2.")
                   .arg(QStringLiteral("%1"), quoted(unknown)));
    return sentences;
}

} // namespace scopix
