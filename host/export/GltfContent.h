// SPDX-License-Identifier: MIT
#pragma once

#include "export/MaterialTable.h"

#include <xsg/nodes/base/SoGeometry.h>

#include <QMap>
#include <QString>

#include <cstdint>
#include <string>
#include <vector>

class SoCamera;
class SoMorph;
class SoNode;
class SoSkin;
class SoTransformation;

namespace scopix
{

/// A scene as glTF sees it: a tree of nodes that each have a matrix and at most one mesh, light and camera. A
/// mesh that stands in several places is there once. What moves it are nodes with a transform of the scene in
/// place of the matrix. Refers to nodes of the scene, which must outlive it.
struct GltfContent {
    static constexpr int None = -1;

    struct Node {
        std::string name;
        SbMatrix matrix;
        const SoTransformation* mover = nullptr; // where it is set, it stands for the matrix, which is none
        std::vector<std::size_t> children;
        int mesh = None;
        int light = None;
        int camera = None;
        int skin = None;
        bool isJoint = false; // of a skin
    };
    struct Mesh {
        std::string name;
        SoGeometry geometry; // before anything bends it
        std::size_t material = 0;
        const SoMorph* morph = nullptr;
        const SoSkin* skin = nullptr;
        /// Where something bends it: the places of its points in the list of points that this belongs to.
        std::vector<std::uint32_t> places;
        bool hasMorphedNormals = false;
        SoGeometry posed; // where a skin bends it: as it is at present
    };
    struct Skin {
        const SoSkin* from = nullptr;
        std::vector<std::size_t> joints; // nodes, for each of bonesInUse()
    };
    /// As SoTrack has them, from time 0 on.
    struct Keys {
        int interpolation = 0;
        std::vector<float> times;
        std::vector<float> values;
        const char* type = nullptr; // of the values, as the format names it
    };
    struct Channel {
        std::size_t node = 0;
        const char* property = nullptr; // as the format names it
        std::size_t keys = 0;           // place among those of the clip
    };
    struct Clip {
        std::string name;
        std::vector<Keys> keys;
        std::vector<Channel> channels;
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
    std::vector<Skin> skins;
    std::vector<Clip> clips;
    /// Of what is no part of it, as in "fogs": how many.
    QMap<QString, int> leftOut;
};

GltfContent toGltf(SoNode& root);

} // namespace scopix
