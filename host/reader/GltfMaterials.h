// SPDX-License-Identifier: MIT
// What a glTF 2.0 file says of its materials and the importer leaves out or turns the other way.
#pragma once

class QJsonObject;
struct aiScene;

namespace scopix
{

struct ModelData;

/// Which texture coordinates each picture has: how it is moved may say it anew.
void takeCoordinateSets(const QJsonObject& text, aiScene& scene);
/// How strong materials glow, and how their pictures are moved.
void readMaterialExtensions(const QJsonObject& text, ModelData& model);

} // namespace scopix
