// SPDX-License-Identifier: MIT
#pragma once

#include "model/ModelMotion.h"

#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbRotation.h>

#include <cstdint>
#include <string>
#include <vector>

namespace scopix
{

/// A model as it was read from a file, before it becomes nodes: plain data, so that a thread of its own can
/// read it. Places in the lists stand for references; -1 is none.
struct ModelData {
    struct Mesh {
        std::string name;
        int material = -1;
        int corners = 3; // of each part of the index: 1 for points, 2 for lines, 3 for triangles
        std::vector<SbVec3f> points;
        std::vector<SbVec3f> normals;                  // one per point, or none
        std::vector<SbVec2f> textureCoordinates;       // one per point, or none
        std::vector<SbVec2f> secondTextureCoordinates; // one per point, or none
        std::vector<SbVec3f> colors;                   // one per point, or none
        std::vector<std::int32_t> index;
    };

    /// The values of a physical material, whose node says what they are.
    struct PhysicalSurface {
        std::int32_t isPhysical = 0; // 0: the values of Material count
        std::int32_t alphaMode = 0;
        SbColor baseColor{1, 1, 1};
        SbColor emissive;
        float emissiveStrength = 1;
        float metallic = 1;
        float roughness = 1;
        float normalScale = 1;
        float occlusionStrength = 1;
        float clearCoat = 0;
        float clearCoatRoughness = 0;
        float clearCoatNormalScale = 1;
        float opacity = 1;
        float alphaCutoff = 0.5F;
    };
    struct SurfacePicture {
        std::int32_t use = 0; // as SoMaterialTexture has them
        std::int32_t picture = -1;
        std::int32_t coordinates = 0; // 0 the first, 1 the second
        std::int32_t clampS = 0;
        std::int32_t clampT = 0;
        SbVec2f translation;
        SbVec2f scaleFactor{1, 1};
        float rotation = 0;
    };

    struct Material {
        std::string name;
        SbColor ambient{0.2F, 0.2F, 0.2F};
        SbColor diffuse{0.8F, 0.8F, 0.8F};
        SbColor specular;
        SbColor emissive;
        float shininess = 0.2F;
        float transparency = 0;
        int picture = -1;
        bool clampS = false;
        bool clampT = false;
        PhysicalSurface physical;
        std::vector<SurfacePicture> pictures; // of the physical surface
    };

    /// Rows from the bottom up.
    struct Picture {
        std::string name;
        int width = 0;
        int height = 0;
        int components = 0;
        std::vector<unsigned char> bytes;
    };

    enum class LightKind : std::int32_t { Ambient, Directional, Point, Spot };

    struct Light {
        LightKind kind = LightKind::Directional;
        SbColor color{1, 1, 1};
        float intensity = 1;
        SbVec3f location;
        SbVec3f direction{0, 0, -1};
        SbVec3f attenuation{1, 0, 0};
        float cutOffAngle = 0.785398F;
        float dropOff = 0;
    };

    struct Camera {
        SbVec3f position;
        SbRotation orientation;
        float heightAngle = 0.785398F;
        float height = 0; // above 0: everything is seen in its size, this much of it
        float nearDistance = 0.1F;
        float farDistance = 1000;
    };

    /// Node 0 is the root; children stand behind their parents.
    struct Node {
        std::string name;
        SbMatrix matrix;
        std::vector<int> meshes;
        std::vector<int> children;
        int light = -1;
        int camera = -1;
    };

    std::vector<Mesh> meshes;
    std::vector<Material> materials;
    std::vector<Picture> pictures;
    std::vector<Light> lights;
    std::vector<Camera> cameras;
    std::vector<Node> nodes;
    ModelMotion motion;
};

} // namespace scopix
