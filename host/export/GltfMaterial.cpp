// SPDX-License-Identifier: MIT
#include "export/GltfMaterial.h"

#include "export/ColorEncoding.h"
#include "export/GltfValues.h"

#include <xsg/nodes/properties/SoMaterialTexture.h>
#include <xsg/nodes/properties/SoPhysicalMaterial.h>

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

using Use = SoMaterialTexture::Use;

QJsonArray withOpacity(const SbColor& c, float opacity)
{
    QJsonArray all = array(c);
    all.append(finite(opacity));
    return all;
}

class Description
{
public:
    Description(const ExportedMaterial& material, const std::function<int(const SoTexture2&)>& textureOf,
                QSet<QString>& extensions)
        : m_material(material)
        , m_textureOf(textureOf)
        , m_extensions(extensions)
    {
    }

    QJsonObject make()
    {
        QJsonObject object = m_material.physical ? physical(*m_material.physical) : plain();
        object.insert(key("name"), QString::fromStdString(m_material.name));
        object.insert(key("doubleSided"), true);
        return object;
    }

private:
    // What this program shows by an exponent, others show by roughness.
    QJsonObject plain()
    {
        const SoMaterialState& look = m_material.look;
        QJsonObject surface{
            {key("baseColorFactor"), withOpacity(factor(toLinear(look.diffuse)), 1 - look.transparency)},
            {key("metallicFactor"), 0},
            {key("roughnessFactor"), finite(1 - look.shininess)}};
        insert(surface, "baseColorTexture", m_material.texture);
        QJsonObject object{{key("pbrMetallicRoughness"), surface},
                           {key("emissiveFactor"), array(toLinear(look.emissive))}};
        if (look.transparency > 0)
            object.insert(key("alphaMode"), key("BLEND"));
        return object;
    }

    QJsonObject physical(const SoPhysicalMaterial& from)
    {
        const SbColor base = from.baseColor.getNum() > 0 ? from.baseColor[0] : SbColor(1, 1, 1);
        QJsonObject surface{{key("baseColorFactor"), withOpacity(factor(base), from.opacity.getValue())},
                            {key("metallicFactor"), finite(from.metallic.getValue())},
                            {key("roughnessFactor"), finite(from.roughness.getValue())}};
        const SoMaterialTexture* own = picture(Use::BaseColor);
        insert(surface, "baseColorTexture", own ? own : m_material.texture);
        insert(surface, "metallicRoughnessTexture", picture(Use::MetallicRoughness));
        QJsonObject object{{key("pbrMetallicRoughness"), surface}};
        insert(object, "normalTexture", picture(Use::Normal),
               {{key("scale"), finite(from.normalScale.getValue())}});
        insert(object, "occlusionTexture", picture(Use::Occlusion),
               {{key("strength"), finite(from.occlusionStrength.getValue())}});
        insert(object, "emissiveTexture", picture(Use::Emissive));
        insertAlpha(object, from);
        QJsonObject extensions;
        insertEmission(object, extensions, from);
        if (from.clearCoat.getValue() > 0)
            insertExtension(extensions, "KHR_materials_clearcoat", clearCoat(from));
        if (!extensions.isEmpty())
            object.insert(key("extensions"), extensions);
        return object;
    }

    static void insertAlpha(QJsonObject& object, const SoPhysicalMaterial& from)
    {
        const int mode = from.alphaMode.getValue();
        if (mode == SoPhysicalMaterial::Blend)
            object.insert(key("alphaMode"), key("BLEND"));
        if (mode != SoPhysicalMaterial::Mask)
            return;
        object.insert(key("alphaMode"), key("MASK"));
        object.insert(key("alphaCutoff"), finite(from.alphaCutoff.getValue()));
    }

    // The factor ends at 1; what is brighter is the extension's.
    void insertEmission(QJsonObject& object, QJsonObject& extensions, const SoPhysicalMaterial& from)
    {
        SbColor color = from.emissiveColor.getValue();
        float strength = from.emissiveStrength.getValue();
        const float most = std::max({color[0], color[1], color[2]});
        if (most > 1) {
            color = SbColor(color[0] / most, color[1] / most, color[2] / most);
            strength *= most;
        }
        object.insert(key("emissiveFactor"), array(color));
        if (strength != 1)
            insertExtension(extensions, "KHR_materials_emissive_strength",
                            {{key("emissiveStrength"), finite(strength)}});
    }

    QJsonObject clearCoat(const SoPhysicalMaterial& from)
    {
        QJsonObject coat{{key("clearcoatFactor"), finite(from.clearCoat.getValue())},
                         {key("clearcoatRoughnessFactor"), finite(from.clearCoatRoughness.getValue())}};
        insert(coat, "clearcoatTexture", picture(Use::ClearCoat));
        insert(coat, "clearcoatRoughnessTexture", picture(Use::ClearCoatRoughness));
        insert(coat, "clearcoatNormalTexture", picture(Use::ClearCoatNormal),
               {{key("scale"), finite(from.clearCoatNormalScale.getValue())}});
        return coat;
    }

    void insertExtension(QJsonObject& extensions, const char* name, const QJsonObject& content)
    {
        extensions.insert(key(name), content);
        m_extensions.insert(key(name));
    }

    const SoMaterialTexture* picture(Use use) const
    {
        return m_material.textures.empty() ? nullptr : m_material.textures[use];
    }

    void insert(QJsonObject& object, const char* name, const SoTexture2* texture, QJsonObject info = {})
    {
        const int place = texture ? m_textureOf(*texture) : -1;
        if (place < 0)
            return;
        info.insert(key("index"), place);
        if (const auto* own = dynamic_cast<const SoMaterialTexture*>(texture)) {
            if (own->coordinates.getValue() == SoMaterialTexture::Second)
                info.insert(key("texCoord"), 1);
            insertTransform(info, *own);
        }
        object.insert(key(name), info);
    }

    // The format counts from a picture's top.
    void insertTransform(QJsonObject& info, const SoMaterialTexture& texture)
    {
        const SbVec2f move = texture.translation.getValue();
        const SbVec2f scale = texture.scaleFactor.getValue();
        const float angle = texture.rotation.getValue();
        if (move == SbVec2f(0, 0) && scale == SbVec2f(1, 1) && angle == 0)
            return;
        const QJsonObject transform{
            {key("offset"), QJsonArray{finite(move[0] - std::sin(angle) * scale[1]),
                                       finite(1 - std::cos(angle) * scale[1] - move[1])}},
            {key("rotation"), finite(angle)},
            {key("scale"), QJsonArray{finite(scale[0]), finite(scale[1])}}};
        QJsonObject extensions;
        insertExtension(extensions, "KHR_texture_transform", transform);
        info.insert(key("extensions"), extensions);
    }

    // Points with colours of their own have them in place of it.
    SbColor factor(const SbColor& color) const { return m_material.isColored ? SbColor(1, 1, 1) : color; }

    const ExportedMaterial& m_material;
    const std::function<int(const SoTexture2&)>& m_textureOf;
    QSet<QString>& m_extensions;
};

} // namespace

QJsonObject describe(const ExportedMaterial& material, const std::function<int(const SoTexture2&)>& textureOf,
                     QSet<QString>& extensions)
{
    return Description(material, textureOf, extensions).make();
}

} // namespace scopix
