// SPDX-License-Identifier: MIT
#pragma once

#include "export/GltfContent.h"

namespace scopix
{

/// glTF 2.0, in one file (.glb), or with its numbers and pictures in files beside it (.gltf). Returns why it
/// could not be written, as the end of a sentence, or an empty text.
QString writeGltf(const GltfContent& content, const QString& path);

} // namespace scopix
