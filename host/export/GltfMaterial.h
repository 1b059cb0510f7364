// SPDX-License-Identifier: MIT
#pragma once

#include "export/MaterialTable.h"

#include <QJsonObject>
#include <QSet>

#include <functional>

namespace scopix
{

/// A material as an object of a glTF file. `textureOf` gives the place of a picture among the file's
/// textures, or -1; the names of extensions that the object uses are added to `extensions`.
QJsonObject describe(const ExportedMaterial& material,
                     const std::function<int(const SoTexture2& texture)>& textureOf,
                     QSet<QString>& extensions);

} // namespace scopix
