// SPDX-License-Identifier: MIT
#include "reader/AssimpMaterial.h"

#include "model/ImageConversion.h"

#include <assimp/GltfMaterial.h>
#include <assimp/material.h>
#include <assimp/scene.h>

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QUrl>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

// The exponent of a highlight that counts as fully sharp.
constexpr float SharpestExponent = 128;
// How much of a metal's colour is left to the light that is not mirrored: without surroundings to mirror, a
// true metal would be black.
constexpr float MetalDiffuse = 0.45F;
// Of the diffuse colour, where a file knows of no ambient one.
constexpr float AmbientPart = 0.6F;

// What was computed from a file's numbers is shown and edited: short ones are easier on the eye.
SbColor rounded(const SbVec3f& c)
{
    const auto part = [](float f) { return std::round(f * 1000) / 1000; };
    return {part(c[0]), part(c[1]), part(c[2])};
}

SbColor toColor(const aiColor4D& c)
{
    return {c.r, c.g, c.b};
}

SbColor colorOf(const aiMaterial& material, const char* key, unsigned type, unsigned index,
                const SbColor& otherwise)
{
    aiColor4D color;
    return material.Get(key, type, index, color) == aiReturn_SUCCESS ? toColor(color) : otherwise;
}

float numberOf(const aiMaterial& material, const char* key, unsigned type, unsigned index, float otherwise)
{
    ai_real value = 0;
    const bool known = material.Get(key, type, index, value) == aiReturn_SUCCESS && std::isfinite(value);
    return known ? static_cast<float>(value) : otherwise;
}

float transparencyOf(const aiMaterial& material)
{
    aiString mode;
    float opacity = numberOf(material, AI_MATKEY_OPACITY, 1);
    if (material.Get(AI_MATKEY_GLTF_ALPHAMODE, mode) == aiReturn_SUCCESS && mode == aiString("OPAQUE"))
        opacity = 1; // its alpha is to be ignored
    const float letThrough = numberOf(material, AI_MATKEY_TRANSMISSION_FACTOR, 0);
    return std::round(1000 * std::clamp(std::max(1 - opacity, letThrough), 0.0F, 1.0F)) / 1000;
}

// Physically based: a base colour, how metallic and how rough.
void applyPbr(const aiMaterial& material, float metallic, ModelData::Material& result)
{
    const float rough = std::clamp(numberOf(material, AI_MATKEY_ROUGHNESS_FACTOR, 1), 0.0F, 1.0F);
    metallic = std::clamp(metallic, 0.0F, 1.0F);
    const SbColor base = colorOf(material, AI_MATKEY_BASE_COLOR, result.diffuse);
    const float sharp = 1 - rough;
    result.diffuse = metallic > 0 ? rounded(base * (1 - metallic * (1 - MetalDiffuse))) : base;
    const SbVec3f coat = SbVec3f(0.5F, 0.5F, 0.5F) * (sharp * (1 - metallic));
    result.specular = rounded(coat + base * (metallic * (0.4F + 0.6F * sharp)));
    result.shininess = std::max(0.02F, std::round(1000 * sharp) / 1000);
}

void takeClassic(const aiMaterial& material, ModelData::Material& result)
{
    result.specular = colorOf(material, AI_MATKEY_COLOR_SPECULAR, {});
    const float exponent = numberOf(material, AI_MATKEY_SHININESS, 0.2F * SharpestExponent);
    result.shininess = std::clamp(exponent / SharpestExponent, 0.0F, 1.0F);
}

struct TextureUse {
    aiString path;
    aiTextureMapMode mode[2] = {aiTextureMapMode_Wrap, aiTextureMapMode_Wrap};
};

bool findTexture(const aiMaterial& material, TextureUse& use)
{
    for (const aiTextureType type : {aiTextureType_BASE_COLOR, aiTextureType_DIFFUSE}) {
        if (material.GetTexture(type, 0, &use.path, nullptr, nullptr, nullptr, nullptr, use.mode) ==
            aiReturn_SUCCESS)
            return true;
    }
    return false;
}

QImage decode(const aiTexture& texture)
{
    if (texture.mHeight == 0) // a whole picture file
        return QImage::fromData(reinterpret_cast<const uchar*>(texture.pcData),
                                static_cast<int>(texture.mWidth));
    const QImage pixels(reinterpret_cast<const uchar*>(texture.pcData), static_cast<int>(texture.mWidth),
                        static_cast<int>(texture.mHeight), QImage::Format_ARGB32);
    return pixels.copy();
}

QImage readBeside(const QString& folder, const QString& name)
{
    // Exporters write other systems' separators, absolute paths of other machines, or URLs.
    QString plain = QUrl::fromPercentEncoding(name.toUtf8());
    plain.replace(QLatin1Char('\\'), QLatin1Char('/'));
    for (const QString& candidate : {name, plain, QFileInfo(plain).fileName()}) {
        const QString path = QDir(folder).filePath(candidate);
        if (!candidate.isEmpty() && QFileInfo(path).isFile())
            return QImageReader(path).read();
    }
    return {};
}

int addPicture(const aiString& path, const aiScene& scene, const QString& folder, ModelData& model)
{
    const std::string name = path.C_Str();
    const auto known = std::find_if(model.pictures.begin(), model.pictures.end(),
                                    [&](const ModelData::Picture& p) { return p.name == name; });
    if (known == model.pictures.end()) {
        const aiTexture* embedded = scene.GetEmbeddedTexture(path.C_Str());
        const QImage image =
            embedded ? decode(*embedded) : readBeside(folder, QString::fromUtf8(path.C_Str()));
        model.pictures.push_back(toPicture(image));
        model.pictures.back().name = name; // one that cannot be read stays empty, and is not tried again
        return static_cast<int>(model.pictures.size()) - 1;
    }
    return static_cast<int>(known - model.pictures.begin());
}

} // namespace

ModelData::Material fromAssimp(const aiMaterial& material, const aiScene& scene, const QString& folder,
                               ModelData& model)
{
    ModelData::Material result;
    aiString name;
    if (material.Get(AI_MATKEY_NAME, name) == aiReturn_SUCCESS)
        result.name = name.C_Str();
    result.diffuse = colorOf(material, AI_MATKEY_COLOR_DIFFUSE, result.diffuse);
    result.emissive = colorOf(material, AI_MATKEY_COLOR_EMISSIVE, {});
    ai_real metallic = 0;
    if (material.Get(AI_MATKEY_METALLIC_FACTOR, metallic) == aiReturn_SUCCESS)
        applyPbr(material, static_cast<float>(metallic), result);
    else
        takeClassic(material, result);
    result.ambient = rounded(result.diffuse * AmbientPart);
    result.transparency = transparencyOf(material);
    TextureUse use;
    if (findTexture(material, use)) {
        result.picture = addPicture(use.path, scene, folder, model);
        result.clampS = use.mode[0] == aiTextureMapMode_Clamp;
        result.clampT = use.mode[1] == aiTextureMapMode_Clamp;
    }
    return result;
}

} // namespace scopix
