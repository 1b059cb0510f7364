// SPDX-License-Identifier: MIT
#pragma once

#include "export/MaterialTable.h"

#include <xsg/nodes/base/SoGeometry.h>

#include <QMap>
#include <QString>

#include <string>
#include <vector>

class SoNode;

namespace scopix
{

/// What there is to see of a scene, as formats without groups and transforms keep it: everything in world
/// coordinates. Refers to nodes of the scene, which must outlive it.
struct FlatScene {
    struct Mesh {
        std::string name;    // UTF-8; perhaps empty
        SoGeometry geometry; // in world coordinates
        std::size_t material = 0;
    };
    std::vector<Mesh> meshes;
    std::vector<ExportedMaterial> materials;
    /// Of what is no part of it, as in "lights": how many.
    QMap<QString, int> leftOut;
};

FlatScene flatten(SoNode& root);

} // namespace scopix
