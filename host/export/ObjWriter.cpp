// SPDX-License-Identifier: MIT
#include "export/ExportSink.h"
#include "export/FlatWriters.h"
#include "model/ImageConversion.h"
#include "support/OutputFile.h"

#include <xsg/nodes/properties/SoTexture2.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>

#include <array>

namespace scopix
{

namespace
{

// The exponent of a fully sharp highlight, as models are read.
constexpr float SharpestExponent = 128;

QString beside(const QString& path, const QString& ending)
{
    const QFileInfo info(path);
    return info.dir().filePath(info.completeBaseName() + ending);
}

ExportSink& operator<<(ExportSink& out, const SbVec3f& v)
{
    return out << ' ' << v[0] << ' ' << v[1] << ' ' << v[2];
}

/// Materials and their pictures, in files beside the model's.
class MaterialLibrary
{
public:
    MaterialLibrary(const FlatScene& scene, QString model)
        : m_scene(scene)
        , m_model(std::move(model))
    {
    }

    QString getName() const { return beside(m_model, QStringLiteral(".mtl")); }

    QString write()
    {
        ExportSink out(getName());
        QString reason;
        for (const ExportedMaterial& material : m_scene.materials) {
            if (reason.isEmpty())
                reason = write(out, material);
        }
        return reason.isEmpty() ? out.finish() : reason;
    }

private:
    QString write(ExportSink& out, const ExportedMaterial& material)
    {
        const SoMaterialState& look = material.look;
        out << "newmtl " << material.name << "\nKa" << look.ambient << "\nKd" << look.diffuse << "\nKs"
            << look.specular << "\nKe" << look.emissive << "\nNs " << look.shininess * SharpestExponent
            << "\nd " << 1 - look.transparency << "\nillum 2\n";
        QString reason;
        const QString picture = material.texture ? pictureOf(*material.texture, reason) : QString();
        if (!picture.isEmpty())
            out << "map_Kd " << QFile::encodeName(picture).toStdString() << '\n';
        return reason;
    }

    // Its name as seen from the model's folder; where there is no file, it is written.
    QString pictureOf(const SoTexture2& texture, QString& reason)
    {
        const QDir folder = QFileInfo(m_model).dir();
        const QString path = QFile::decodeName(texture.getFilePath().c_str());
        if (!path.isEmpty() && QFileInfo(path).isFile())
            return folder.relativeFilePath(QFileInfo(path).absoluteFilePath());
        const QImage image = toImage(texture.image);
        if (image.isNull())
            return {};
        const QString written = beside(m_model, QStringLiteral("-%1.png").arg(++m_pictures));
        QByteArray bytes;
        QBuffer buffer(&bytes);
        image.save(&buffer, "png");
        reason = replaceFile(written, bytes);
        return folder.relativeFilePath(written);
    }

    const FlatScene& m_scene;
    QString m_model;
    int m_pictures = 0;
};

class ObjWriter
{
public:
    ObjWriter(const FlatScene& scene, const QString& path)
        : m_scene(scene)
        , m_out(path)
    {
    }

    QString write(const QString& library)
    {
        m_out << "# written by Scopix\nmtllib " << QFile::encodeName(library).toStdString() << '\n';
        for (const FlatScene::Mesh& mesh : m_scene.meshes)
            write(mesh);
        return m_out.finish();
    }

private:
    void write(const FlatScene::Mesh& mesh)
    {
        const SoGeometry& geometry = mesh.geometry;
        m_out << "o " << (mesh.name.empty() ? "part" : mesh.name) << "\nusemtl "
              << m_scene.materials[mesh.material].name << '\n';
        for (std::size_t i = 0; i < geometry.points.size(); ++i) {
            m_out << 'v' << geometry.points[i];
            if (!geometry.colors.empty())
                m_out << geometry.colors[i];
            m_out << '\n';
        }
        for (const SbVec2f& at : geometry.textureCoordinates)
            m_out << "vt " << at[0] << ' ' << at[1] << '\n';
        for (const SbVec3f& normal : geometry.normals)
            m_out << "vn" << normal << '\n';
        writeParts(geometry);
        m_points += geometry.points.size();
        m_textureCoordinates += geometry.textureCoordinates.size();
        m_normals += geometry.normals.size();
    }

    void writeParts(const SoGeometry& geometry)
    {
        constexpr std::array<std::string_view, 3> Keys{"f", "l", "p"}; // as in SoGeometry::Kind
        const auto kind = static_cast<std::size_t>(geometry.kind);
        const std::size_t corners = Keys.size() - kind;
        for (std::size_t i = 0; i + corners <= geometry.index.size(); i += corners) {
            m_out << Keys[kind];
            for (std::size_t k = 0; k < corners; ++k)
                writeCorner(geometry, geometry.index[i + k]);
            m_out << '\n';
        }
    }

    // Counted from 1, through all meshes: point, texture coordinate, normal.
    void writeCorner(const SoGeometry& geometry, std::size_t at)
    {
        m_out << ' ' << m_points + at + 1;
        if (geometry.kind == SoGeometry::Kind::Points)
            return;
        const bool hasNormal = !geometry.normals.empty() && geometry.kind == SoGeometry::Kind::Triangles;
        if (!geometry.textureCoordinates.empty())
            m_out << '/' << m_textureCoordinates + at + 1;
        else if (hasNormal)
            m_out << '/';
        if (hasNormal)
            m_out << '/' << m_normals + at + 1;
    }

    const FlatScene& m_scene;
    ExportSink m_out;
    std::size_t m_points = 0;
    std::size_t m_textureCoordinates = 0;
    std::size_t m_normals = 0;
};

} // namespace

QString writeObj(const FlatScene& scene, const QString& path)
{
    MaterialLibrary library(scene, path);
    const QString reason = library.write();
    return reason.isEmpty() ? ObjWriter(scene, path).write(QFileInfo(library.getName()).fileName()) : reason;
}

} // namespace scopix
