// SPDX-License-Identifier: MIT
#pragma once

#include "import/SceneBuilder.h"
#include "model/ModelReadResult.h"
#include "reader/ModelReader.h"

#include <xsg/files/SoSceneFile.h>

/// Writes the shipped lighthouse as a scene whose surfaces are not physically based, for tests that tune an
/// SoMaterial, and returns the file's path.
inline QString writePlainLighthouse(const QString& folder)
{
    scopix::ModelReadResult read =
        scopix::readModel(QStringLiteral(SCOPIX_SOURCE_DIR "/data/models/lighthouse.glb"));
    for (scopix::ModelData::Material& material : read.data.materials)
        material.physical = {};
    const SoRef<SoNode> scene(scopix::buildScene(std::move(read.data), "lighthouse").get());
    const QString path = folder + QStringLiteral("/lighthouse.xsg");
    std::string error;
    return SoSceneFile::write(scene.get(), path.toStdString(), error) ? path : QString();
}
