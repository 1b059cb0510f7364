// SPDX-License-Identifier: MIT
#pragma once

#include "export/FlatScene.h"
#include "export/GltfContent.h"

#include <QStringList>

namespace scopix
{

/// A scene on its way into a file of other programs' formats. What there is to see is collected when this is
/// made; the scene must not change while it lives. LongWork may cancel that, and the writing.
///
///     SceneExport copy(root, "part.stl");
///     ... copy.getLosses() is what the file will not keep
///     const QString error = copy.write();
class SceneExport
{
public:
    /// The endings of such files, in lower case.
    static QStringList endings();
    static bool hasEnding(const QString& path);

    /// The path's ending says how it is written, and must be one of them.
    SceneExport(SoNode& root, QString path);

    /// A part of a sentence each, as in "lights (2)".
    QStringList getLosses() const;
    /// A Wavefront file has its materials and pictures beside it, named after it, and a .gltf its
    /// numbers and pictures. One sentence where that
    /// cannot be done, else an empty text; each file is then the old one or the new one.
    QString write() const;

private:
    struct Format;
    static const Format* formatOf(const QString& path);

    QString m_path;
    const Format* m_format;
    // One of them, as the format needs.
    GltfContent m_tree;
    FlatScene m_flat;
};

} // namespace scopix
