// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

class QFile;

namespace scopix
{

struct ModelData;

/// The JSON text of an open glTF or GLB file; of what is larger than a text can be, its first part.
QByteArray readGltfText(QFile& file);
/// Adds what the importer leaves out or turns the other way: how strong materials glow, and how their
/// pictures are moved.
void readMaterialExtensions(const QString& path, ModelData& model);

} // namespace scopix
