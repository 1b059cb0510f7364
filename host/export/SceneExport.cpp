// SPDX-License-Identifier: MIT
#include "export/SceneExport.h"

#include "export/ExportNames.h"
#include "export/FlatWriters.h"
#include "export/GltfWriter.h"
#include "support/OutputFile.h"
#include "support/Printable.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

namespace scopix
{

namespace
{

int count(const FlatScene& scene, bool (*matters)(const FlatScene::Mesh&))
{
    return static_cast<int>(std::count_if(scene.meshes.begin(), scene.meshes.end(), matters));
}

bool isNoSurface(const FlatScene::Mesh& mesh)
{
    return mesh.geometry.kind != SoGeometry::Kind::Triangles;
}

int countPictures(const FlatScene& scene)
{
    return static_cast<int>(std::count_if(scene.materials.begin(), scene.materials.end(),
                                          [](const auto& material) { return material.texture != nullptr; }));
}

} // namespace

/// Either writer is null.
struct SceneExport::Format {
    QLatin1String ending;
    QString (*writeTree)(const GltfContent& content, const QString& path);
    QString (*writeFlat)(const FlatScene& scene, const QString& path);
    const char* lostMaterials; // null: none
    bool keepsPictures;
    bool keepsLines;
};

const SceneExport::Format* SceneExport::formatOf(const QString& path)
{
    static const std::array<Format, 5> formats{
        {{QLatin1String("glb"), writeGltf, nullptr, nullptr, true, true},
         {QLatin1String("gltf"), writeGltf, nullptr, nullptr, true, true},
         {QLatin1String("obj"), nullptr, writeObj, nullptr, true, true},
         {QLatin1String("ply"), nullptr, writePly,
          QT_TRANSLATE_NOOP("SceneExport", "materials, but for the colours of points"), false, true},
         {QLatin1String("stl"), nullptr, writeStl, QT_TRANSLATE_NOOP("SceneExport", "materials"), false,
          false}}};
    const QString ending = QFileInfo(path).suffix().toLower();
    const auto found = std::find_if(formats.begin(), formats.end(),
                                    [&](const Format& format) { return format.ending == ending; });
    return found == formats.end() ? nullptr : &*found;
}

QStringList SceneExport::endings()
{
    return {QStringLiteral("glb"), QStringLiteral("gltf"), QStringLiteral("obj"), QStringLiteral("ply"),
            QStringLiteral("stl")};
}

bool SceneExport::hasEnding(const QString& path)
{
    return formatOf(path) != nullptr;
}

SceneExport::SceneExport(SoNode& root, QString path)
    : m_path(std::move(path))
    , m_format(formatOf(m_path))
{
    if (m_format->writeTree)
        m_tree = toGltf(root);
    else
        m_flat = flatten(root);
}

QStringList SceneExport::getLosses() const
{
    QMap<QString, int> lost = m_tree.leftOut.isEmpty() ? m_flat.leftOut : m_tree.leftOut;
    if (m_format->lostMaterials)
        lost.insert(translated(m_format->lostMaterials), int(m_flat.materials.size()));
    if (!m_format->keepsPictures)
        lost.insert(translated("pictures"), countPictures(m_flat));
    if (!m_format->keepsLines)
        lost.insert(translated("lines and points"), count(m_flat, isNoSurface));
    QStringList losses;
    if (m_format->writeFlat)
        losses << translated("groups and transforms, which are applied");
    for (auto at = lost.cbegin(); at != lost.cend(); ++at) {
        if (at.value() > 0)
            losses << QStringLiteral("%1 (%2)").arg(at.key()).arg(at.value());
    }
    return losses;
}

QString SceneExport::write() const
{
    QString reason = reasonAgainstWriting(m_path, endings());
    if (reason.isEmpty())
        reason =
            m_format->writeTree ? m_format->writeTree(m_tree, m_path) : m_format->writeFlat(m_flat, m_path);
    return reason.isEmpty() ? QString()
                            : translated("“%1” cannot be written: %2.").arg(printable(m_path), reason);
}

} // namespace scopix
