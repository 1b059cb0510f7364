// SPDX-License-Identifier: MIT
#include "export/ExportSink.h"
#include "export/FlatWriters.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <limits>

namespace scopix
{

namespace
{

using Kind = SoGeometry::Kind;

/// Which properties all points have.
struct Layout {
    bool hasNormals = true;
    bool hasTextureCoordinates = true;
    std::size_t points = 0;
    std::size_t triangles = 0;
    std::size_t lines = 0;
};

Layout layoutOf(const FlatScene& scene)
{
    Layout layout;
    for (const FlatScene::Mesh& mesh : scene.meshes) {
        const SoGeometry& geometry = mesh.geometry;
        layout.hasNormals &= !geometry.normals.empty();
        layout.hasTextureCoordinates &= !geometry.textureCoordinates.empty();
        layout.points += geometry.points.size();
        layout.triangles += geometry.kind == Kind::Triangles ? geometry.index.size() / 3 : 0;
        layout.lines += geometry.kind == Kind::Lines ? geometry.index.size() / 2 : 0;
    }
    return layout;
}

void writeHeader(ExportSink& out, const Layout& layout)
{
    out << "ply\nformat binary_little_endian 1.0\ncomment written by Scopix\nelement vertex " << layout.points
        << "\nproperty float x\nproperty float y\nproperty float z\n";
    if (layout.hasNormals)
        out << "property float nx\nproperty float ny\nproperty float nz\n";
    if (layout.hasTextureCoordinates)
        out << "property float s\nproperty float t\n";
    out << "property uchar red\nproperty uchar green\nproperty uchar blue\nproperty uchar alpha\n";
    if (layout.triangles > 0)
        out << "element face " << layout.triangles << "\nproperty list uchar int vertex_indices\n";
    if (layout.lines > 0)
        out << "element edge " << layout.lines << "\nproperty int vertex1\nproperty int vertex2\n";
    out << "end_header\n";
}

std::uint8_t toByte(float part)
{
    return static_cast<std::uint8_t>(std::lround(255 * std::clamp(part, 0.0F, 1.0F)));
}

void writePoints(ExportSink& out, const Layout& layout, const FlatScene::Mesh& mesh,
                 const SoMaterialState& look)
{
    const SoGeometry& geometry = mesh.geometry;
    const auto vector = [&](const SbVec3f& v) {
        for (int i = 0; i < 3; ++i)
            out.raw(v[i]);
    };
    for (std::size_t i = 0; i < geometry.points.size(); ++i) {
        vector(geometry.points[i]);
        if (layout.hasNormals)
            vector(geometry.normals[i]);
        if (layout.hasTextureCoordinates)
            out.raw(geometry.textureCoordinates[i][0]).raw(geometry.textureCoordinates[i][1]);
        const SbVec3f color = geometry.colors.empty() ? look.diffuse : geometry.colors[i];
        for (int k = 0; k < 3; ++k)
            out.raw(toByte(color[k]));
        out.raw(toByte(1 - look.transparency));
    }
}

// Of one kind, in the numbers of all points together.
void writeParts(ExportSink& out, const FlatScene& scene, Kind kind)
{
    const std::size_t corners = kind == Kind::Triangles ? 3 : 2;
    std::uint32_t first = 0;
    for (const FlatScene::Mesh& mesh : scene.meshes) {
        const SoGeometry& geometry = mesh.geometry;
        for (std::size_t i = 0; geometry.kind == kind && i + corners <= geometry.index.size(); i += corners) {
            if (kind == Kind::Triangles)
                out.raw(static_cast<std::uint8_t>(corners));
            for (std::size_t k = 0; k < corners; ++k)
                out.raw(first + geometry.index[i + k]);
        }
        first += static_cast<std::uint32_t>(geometry.points.size());
    }
}

} // namespace

QString writePly(const FlatScene& scene, const QString& path)
{
    const Layout layout = layoutOf(scene);
    if (layout.points > std::numeric_limits<std::int32_t>::max())
        return QCoreApplication::translate("SceneExport", "such a file holds no more than 2147483647 points");
    ExportSink out(path);
    writeHeader(out, layout);
    for (const FlatScene::Mesh& mesh : scene.meshes)
        writePoints(out, layout, mesh, scene.materials[mesh.material].look);
    writeParts(out, scene, Kind::Triangles);
    writeParts(out, scene, Kind::Lines);
    return out.finish();
}

} // namespace scopix
