// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/values/SbBox.h>
#include <xsg/values/SbVec.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

/// What a shape looks like, as drawing, picking and boxes use it: corners and how they are joined.
struct SoGeometry {
    enum class Kind { Triangles, Lines, Points };
    Kind kind = Kind::Triangles;
    bool isScreenSpace = false; // points are pixels beside the projected origin
    std::vector<SbVec3f> points;
    std::vector<SbVec3f> normals;                  // one per point, or empty: drawn without light
    std::vector<SbVec2f> textureCoordinates;       // one per point, or empty
    std::vector<SbVec2f> secondTextureCoordinates; // one per point, or empty
    std::vector<SbVec3f> colors;                   // one per point, or empty: the material's first colour
    std::vector<std::uint32_t> index; // three per triangle, two per line, one per point; all within points
};

/// Two shapes with the same key have the same geometry, so that it is made and kept once.
class SoGeometryKey
{
public:
    /// One part that it is made of: a node's number with its change count, or a solid's kind and fineness.
    /// The library's shapes have up to six; further ones are mixed into the last.
    void add(std::uint64_t id, std::uint64_t version)
    {
        const std::size_t at = std::min(2 * m_count++, m_parts.size() - 2);
        m_parts[at] = mixed(m_parts[at], id);
        m_parts[at + 1] = mixed(m_parts[at + 1], version);
    }
    std::size_t hash() const
    {
        std::uint64_t all = Seed;
        for (std::size_t i = 0; i < std::min(2 * m_count, m_parts.size()); ++i)
            all = mixed(all, m_parts[i]);
        return static_cast<std::size_t>(all ^ (all >> 32));
    }
    friend bool operator==(const SoGeometryKey& a, const SoGeometryKey& b)
    {
        return a.m_count == b.m_count && a.m_parts == b.m_parts;
    }

private:
    static constexpr std::uint64_t Seed = 0xcbf29ce484222325ULL;
    static std::uint64_t mixed(std::uint64_t before, std::uint64_t part)
    {
        return before == 0 ? part : (before ^ part) * 0x9E3779B97F4A7C15ULL;
    }

    std::array<std::uint64_t, 12> m_parts{};
    std::size_t m_count = 0;
};

struct SoGeometryKeyHash {
    std::size_t operator()(const SoGeometryKey& key) const { return key.hash(); }
};
