// SPDX-License-Identifier: MIT
#include "export/GltfJson.h"

#include "export/GltfMaterial.h"
#include "export/GltfMotionJson.h"
#include "export/GltfValues.h"
#include "model/ImageConversion.h"

#include <xsg/nodes/cameras/SoOrthographicCamera.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/properties/SoTexture2.h>

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <cmath>
#include <map>

namespace scopix
{

namespace
{

// The numbers that the file format gives to these.
constexpr int ModePoints = 0;
constexpr int ModeLines = 1;
constexpr int ModeTriangles = 4;
constexpr int WrapRepeat = 10497;
constexpr int WrapClamp = 33071;

using Component = GltfBuffer::Component;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

class Description
{
public:
    explicit Description(const GltfContent& content)
        : m_content(content)
    {
    }

    GltfParts make()
    {
        QJsonObject root{
            {key("asset"), QJsonObject{{key("version"), key("2.0")}, {key("generator"), key("Scopix")}}},
            {key("scene"), 0},
            {key("scenes"), QJsonArray{QJsonObject{{key("nodes"), QJsonArray{0}}}}},
            {key("nodes"), nodes()}};
        insertList(root, "meshes", meshes());
        insertList(root, "materials", materials());
        insertList(root, "textures", m_textures);
        insertList(root, "samplers", m_samplers);
        insertList(root, "images", m_images);
        insertList(root, "cameras", cameras());
        insertList(root, "skins", describeSkins(m_content, m_buffer));
        insertList(root, "animations", describeClips(m_content, m_buffer));
        addLights(root);
        addExtensions(root);
        insertList(root, "accessors", m_buffer.getAccessors());
        insertList(root, "bufferViews", m_buffer.getViews());
        return {root, std::move(m_buffer)};
    }

private:
    QJsonArray nodes() const
    {
        QJsonArray all;
        for (const GltfContent::Node& node : m_content.nodes)
            all.append(describe(node));
        return all;
    }

    static QJsonObject describe(const GltfContent::Node& node)
    {
        QJsonObject object;
        setName(object, node.name);
        insertPlace(object, node);
        QJsonArray children;
        for (const std::size_t child : node.children)
            children.append(static_cast<qint64>(child));
        insertList(object, "children", children);
        if (node.mesh >= 0)
            object.insert(key("mesh"), node.mesh);
        if (node.skin >= 0)
            object.insert(key("skin"), node.skin);
        if (node.camera >= 0)
            object.insert(key("camera"), node.camera);
        if (node.light >= 0)
            object.insert(key("extensions"),
                          QJsonObject{{LightsExtension, QJsonObject{{key("light"), node.light}}}});
        return object;
    }

    QJsonArray meshes()
    {
        QJsonArray all;
        for (const GltfContent::Mesh& mesh : m_content.meshes) {
            QJsonObject object;
            QJsonObject part = primitive(mesh);
            insertBending(object, part, mesh, m_buffer);
            object.insert(key("primitives"), QJsonArray{part});
            setName(object, mesh.name);
            all.append(object);
        }
        return all;
    }

    QJsonObject primitive(const GltfContent::Mesh& mesh)
    {
        const SoGeometry& geometry = mesh.geometry;
        QJsonObject attributes{{key("POSITION"), addPoints(m_buffer, geometry.points)}};
        if (!geometry.normals.empty() && geometry.kind == SoGeometry::Kind::Triangles)
            attributes.insert(key("NORMAL"), addVectors(m_buffer, geometry.normals));
        if (!geometry.textureCoordinates.empty())
            attributes.insert(key("TEXCOORD_0"), addTextureCoordinates(geometry.textureCoordinates));
        if (!geometry.secondTextureCoordinates.empty())
            attributes.insert(key("TEXCOORD_1"), addTextureCoordinates(geometry.secondTextureCoordinates));
        if (!geometry.colors.empty())
            attributes.insert(key("COLOR_0"), addVectors(m_buffer, geometry.colors));
        const int mode = geometry.kind == SoGeometry::Kind::Triangles ? ModeTriangles
                         : geometry.kind == SoGeometry::Kind::Lines   ? ModeLines
                                                                      : ModePoints;
        return {{key("attributes"), attributes},
                {key("indices"), addIndex(geometry.index)},
                {key("material"), static_cast<qint64>(mesh.material)},
                {key("mode"), mode}};
    }

    // Counted from the picture's top.
    int addTextureCoordinates(const std::vector<SbVec2f>& coordinates)
    {
        const auto write = [&coordinates](ExportSink& out) {
            for (const SbVec2f& at : coordinates)
                out.raw(static_cast<float>(finite(at[0]))).raw(1 - static_cast<float>(finite(at[1])));
        };
        return m_buffer.add(Component::Float, "VEC2", coordinates.size(), 2 * sizeof(float), write, {});
    }

    int addIndex(const std::vector<std::uint32_t>& index)
    {
        const auto write = [&index](ExportSink& out) {
            for (const std::uint32_t place : index)
                out.raw(place);
        };
        return m_buffer.add(Component::UnsignedInt, "SCALAR", index.size(), sizeof(std::uint32_t), write, {});
    }

    QJsonArray materials()
    {
        QJsonArray all;
        for (const ExportedMaterial& material : m_content.materials)
            all.append(scopix::describe(
                material, [this](const SoTexture2& each) { return textureOf(each); }, m_extensions));
        return all;
    }

    int textureOf(const SoTexture2& texture)
    {
        const auto [known, isNew] = m_textureNodes.emplace(&texture, GltfContent::None);
        if (!isNew)
            return known->second;
        const int image = addImage(texture);
        if (image < 0)
            return GltfContent::None;
        const auto wrap = [](const SoSFEnum& field) {
            return field.getValue() == SoTexture2::Clamp ? WrapClamp : WrapRepeat;
        };
        m_samplers.append(
            QJsonObject{{key("wrapS"), wrap(texture.wrapS)}, {key("wrapT"), wrap(texture.wrapT)}});
        m_textures.append(QJsonObject{{key("source"), image}, {key("sampler"), m_samplers.size() - 1}});
        return known->second = m_textures.size() - 1;
    }

    // As it is in its file, where the format has that kind of picture; else as PNG.
    int addImage(const SoTexture2& texture)
    {
        const QString path = QFile::decodeName(texture.getFilePath().c_str());
        QByteArray bytes = path.isEmpty() ? QByteArray() : contentOf(path);
        const bool isJpeg = bytes.startsWith("\xff\xd8\xff");
        if (!isJpeg && !bytes.startsWith("\x89PNG")) {
            const QImage image = bytes.isEmpty() ? toImage(texture.image) : QImage::fromData(bytes);
            bytes.clear();
            QBuffer buffer(&bytes);
            if (image.isNull() || !image.save(&buffer, "png"))
                return GltfContent::None;
        }
        QJsonObject object{{key("mimeType"), key(isJpeg ? "image/jpeg" : "image/png")},
                           {key("bufferView"), m_buffer.addBytes(bytes)}};
        setName(object, QString::fromLatin1(texture.getName().getString()).toStdString());
        m_images.append(object);
        return m_images.size() - 1;
    }

    QJsonArray cameras() const
    {
        QJsonArray all;
        for (const SoCamera* camera : m_content.cameras)
            all.append(describe(*camera));
        return all;
    }

    static QJsonObject describe(const SoCamera& camera)
    {
        QJsonObject lens{{key("znear"), finite(camera.nearDistance.getValue())},
                         {key("zfar"), finite(camera.farDistance.getValue())}};
        const bool isFlat = camera.isOfType(SoOrthographicCamera::getClassTypeId());
        if (isFlat) {
            const double half =
                finite(static_cast<const SoOrthographicCamera&>(camera).height.getValue()) / 2;
            lens.insert(key("xmag"), half);
            lens.insert(key("ymag"), half);
        } else if (camera.isOfType(SoPerspectiveCamera::getClassTypeId())) {
            lens.insert(key("yfov"),
                        finite(static_cast<const SoPerspectiveCamera&>(camera).heightAngle.getValue()));
        }
        QJsonObject object{{key("type"), key(isFlat ? "orthographic" : "perspective")},
                           {key(isFlat ? "orthographic" : "perspective"), lens}};
        return object;
    }

    void addLights(QJsonObject& root)
    {
        if (m_content.lights.empty())
            return;
        QJsonArray all;
        for (const GltfContent::Light& light : m_content.lights)
            all.append(describe(light));
        m_extensions.insert(LightsExtension);
        root.insert(key("extensions"), QJsonObject{{LightsExtension, QJsonObject{{key("lights"), all}}}});
    }

    void addExtensions(QJsonObject& root) const
    {
        QStringList names = m_extensions.values();
        names.sort();
        insertList(root, "extensionsUsed", QJsonArray::fromStringList(names));
    }

    static QJsonObject describe(const GltfContent::Light& light)
    {
        using Kind = SoLightSource::Kind;
        const Kind kind = light.source.kind;
        QJsonObject object{{key("color"), array(light.color)}, {key("intensity"), finite(light.intensity)}};
        setName(object, light.name);
        object.insert(key("type"), key(kind == Kind::Directional ? "directional"
                                       : kind == Kind::Point     ? "point"
                                                                 : "spot"));
        if (kind == Kind::Spot)
            object.insert(key("spot"),
                          QJsonObject{{key("outerConeAngle"), std::acos(finite(light.source.cutOffCosine))}});
        return object;
    }

    static const QString LightsExtension;

    const GltfContent& m_content;
    GltfBuffer m_buffer;
    QSet<QString> m_extensions;
    QJsonArray m_textures;
    QJsonArray m_samplers;
    QJsonArray m_images;
    std::map<const SoTexture2*, int> m_textureNodes;
};

const QString Description::LightsExtension = QStringLiteral("KHR_lights_punctual");

} // namespace

GltfParts describe(const GltfContent& content)
{
    return Description(content).make();
}

} // namespace scopix
