// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbBox.h>
#include <xsg/values/SbVec.h>

#include <cstdint>
#include <functional>
#include <vector>

/// What a shape looks like, as drawing, picking and boxes use it: corners and how they are joined.
struct SoGeometry {
    enum class Kind { Triangles, Lines, Points };
    Kind kind = Kind::Triangles;
    bool isScreenSpace = false; // points are pixels beside the projected origin
    std::vector<SbVec3f> points;
    std::vector<SbVec3f> normals;            // one per point, or empty: drawn without light
    std::vector<SbVec2f> textureCoordinates; // one per point, or empty
    std::vector<SbVec3f> colors;             // one per point, or empty: the material's first colour
    std::vector<std::uint32_t> index; // three per triangle, two per line, one per point; all within points
};

/// Two shapes with the same key have the same geometry, so that it is made and kept once.
struct SoGeometryKey {
    /// What it is made of: up to five nodes by number, each with its change count, or a solid's kind and
    /// fineness.
    std::uint64_t parts[10] = {};
    void add(std::uint64_t id, std::uint64_t version)
    {
        parts[used++] = id;
        parts[used++] = version;
    }
    int used = 0;
    friend bool operator==(const SoGeometryKey& a, const SoGeometryKey& b)
    {
        for (int i = 0; i < 10; ++i) {
            if (a.parts[i] != b.parts[i])
                return false;
        }
        return true;
    }
};

struct SoGeometryKeyHash {
    std::size_t operator()(const SoGeometryKey& key) const
    {
        std::uint64_t hash = 0xcbf29ce484222325ULL;
        for (int i = 0; i < key.used; ++i)
            hash = (hash ^ key.parts[i]) * 0x9E3779B97F4A7C15ULL;
        return static_cast<std::size_t>(hash ^ (hash >> 32));
    }
};
