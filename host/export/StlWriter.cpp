// SPDX-License-Identifier: MIT
#include "export/ExportSink.h"
#include "export/FlatWriters.h"

#include <QCoreApplication>

#include <limits>

namespace scopix
{

namespace
{

constexpr std::size_t HeaderBytes = 80; // free text, which must not begin with "solid"

std::size_t countTriangles(const FlatScene& scene)
{
    std::size_t count = 0;
    for (const FlatScene::Mesh& mesh : scene.meshes)
        count += mesh.geometry.kind == SoGeometry::Kind::Triangles ? mesh.geometry.index.size() / 3 : 0;
    return count;
}

void write(ExportSink& out, const SbVec3f& v)
{
    for (int i = 0; i < 3; ++i)
        out.raw(v[i]);
}

void write(ExportSink& out, const SoGeometry& geometry)
{
    for (std::size_t i = 0; i + 2 < geometry.index.size(); i += 3) {
        const auto corner = [&](std::size_t k) { return geometry.points[geometry.index[i + k]]; };
        write(out, cross(corner(1) - corner(0), corner(2) - corner(0)).normalized());
        for (std::size_t k = 0; k < 3; ++k)
            write(out, corner(k));
        out.raw(std::uint16_t{0});
    }
}

} // namespace

QString writeStl(const FlatScene& scene, const QString& path)
{
    const std::size_t count = countTriangles(scene);
    if (count > std::numeric_limits<std::uint32_t>::max())
        return QCoreApplication::translate("SceneExport",
                                           "such a file holds no more than 4294967295 triangles");
    ExportSink out(path);
    std::string header = "Triangles of a scene, written by Scopix";
    header.resize(HeaderBytes, ' ');
    out << header;
    out.raw(static_cast<std::uint32_t>(count));
    for (const FlatScene::Mesh& mesh : scene.meshes) {
        if (mesh.geometry.kind == SoGeometry::Kind::Triangles)
            write(out, mesh.geometry);
    }
    return out.finish();
}

} // namespace scopix
