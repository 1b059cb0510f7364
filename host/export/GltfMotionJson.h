// SPDX-License-Identifier: MIT
// What moves, as objects of a glTF file. The content must outlive the buffer.
#pragma once

#include "export/GltfBuffer.h"
#include "export/GltfContent.h"

#include <QJsonObject>

namespace scopix
{

/// Where a node stands at rest: as a matrix, or as the parts that animations move.
void insertPlace(QJsonObject& object, const GltfContent::Node& node);
/// The targets and weights of a mesh's morph, and the joints of its skin.
void insertBending(QJsonObject& mesh, QJsonObject& primitive, const GltfContent::Mesh& from,
                   GltfBuffer& buffer);
QJsonArray describeSkins(const GltfContent& content, GltfBuffer& buffer);
QJsonArray describeClips(const GltfContent& content, GltfBuffer& buffer);

} // namespace scopix
