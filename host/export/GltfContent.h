// SPDX-License-Identifier: MIT
#pragma once

#include "export/MaterialTable.h"

#include <xsg/nodes/base/SoGeometry.h>

#include <QMap>
#include <QString>

#include <string>
#include <vector>

class SoCamera;
class SoNode;

namespace scopix
{

/// A scene as glTF sees it: a tree of nodes that each have a matrix and at most one mesh, light and camera. A
/// mesh that stands in several places is there once. Refers to nodes of the scene, which must outlive it.
struct GltfContent {
    static constexpr int None = -1;

    struct Node {
        std::string name;
        SbMatrix matrix;
        std::vector<std::size_t> children;
        int mesh = None;
        int light = None;
        int camera = None;
    };
    struct Mesh {
        std::string name;
        SoGeometry geometry;
        std::size_t material = 0;
    };
    struct Light {
        std::string name;
        SoLightSource source; // shines along -z, from the origin of its node
        float intensity = 1;
        SbColor color{1, 1, 1};
    };

    std::vector<Node> nodes; // the first is the root; children stand behind their parents
    std::vector<Mesh> meshes;
    std::vector<ExportedMaterial> materials;
    std::vector<Light> lights;
    std::vector<const SoCamera*> cameras;
    /// Of what is no part of it, as in "fogs": how many.
    QMap<QString, int> leftOut;
};

GltfContent toGltf(SoNode& root);

} // namespace scopix
