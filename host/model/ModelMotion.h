// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbMatrix.h>

#include <cstdint>
#include <string>
#include <vector>

namespace scopix
{

/// What of a model moves: plain data, as the rest of ModelData. Nodes and meshes are places in its lists.
struct ModelMotion {
    struct Skin {
        int mesh = -1;
        std::vector<int> bones;      // nodes
        std::vector<SbMatrix> binds; // of each bone: from the mesh's points to it, as the skin was made
        int bonesPerPoint = 0;
        std::vector<std::int32_t> boneIndices; // by place in `bones`; -1: the node of the mesh
        std::vector<float> weights;
    };

    struct Morph {
        int mesh = -1;
        std::vector<float> weights;         // one for each target
        std::vector<SbVec3f> pointOffsets;  // target by target
        std::vector<SbVec3f> normalOffsets; // the same, or none
    };

    enum class Property : std::int32_t { Translation, Rotation, Scale, Weights };
    enum class Between : std::int32_t { Step, Linear, Cubic };

    struct Track {
        int node = -1;
        Property property = Property::Translation; // weights: of the morphs of all its meshes
        Between between = Between::Linear;
        std::vector<float> times; // in seconds
        std::vector<float> values;
    };

    struct Clip {
        std::string name;
        float seconds = 0;
        std::vector<Track> tracks;
    };

    std::vector<Skin> skins;
    std::vector<Morph> morphs;
    std::vector<Clip> clips;
};

} // namespace scopix
