// SPDX-License-Identifier: MIT
#pragma once

#include "export/GltfBuffer.h"
#include "export/GltfContent.h"

#include <QJsonObject>

namespace scopix
{

/// The two parts of a glTF file: the description, and the bytes that it refers to, in a buffer that has no
/// name yet. Both refer to the content, which must outlive them.
struct GltfParts {
    QJsonObject description;
    GltfBuffer buffer;
};

GltfParts describe(const GltfContent& content);

} // namespace scopix
