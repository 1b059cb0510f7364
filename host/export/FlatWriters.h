// SPDX-License-Identifier: MIT
// Writers of formats that know triangles, lines and points in one space. Each returns why it could not be
// written, as the end of a sentence, or an empty text.
#pragma once

#include "export/FlatScene.h"

namespace scopix
{

/// Wavefront: text, with materials in a file of the same name and pictures beside it.
QString writeObj(const FlatScene& scene, const QString& path);
/// Stanford polygons, binary: all meshes in one, coloured at their points.
QString writePly(const FlatScene& scene, const QString& path);
/// Stereolithography, binary: bare triangles.
QString writeStl(const FlatScene& scene, const QString& path);

} // namespace scopix
