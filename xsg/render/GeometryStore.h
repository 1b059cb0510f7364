// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoGeometry.h>
#include <xsg/nodes/shapes/SoShape.h>
#include <xsg/render/GlFunctions.h>

#include <unordered_map>

namespace xsg
{

struct GpuGeometry {
    SoGeometry::Kind kind = SoGeometry::Kind::Triangles;
    GLsizei indexCount = 0;
    std::int64_t pointCount = 0;
    bool isScreenSpace = false;
    GlVertexArray vertexArray;
    GlBuffer vertices;
    GlBuffer indices;
    std::int64_t users = 0; // render items that use it
    SoGeometryKey key;
};

/// Geometry in vertex buffers, made once per key and kept while scenes use it.
class XSG_API GeometryStore
{
public:
    /// Of which texture coordinates a geometry has the tangents, too.
    enum class Tangents { None, First, Second };
    /// The shape's geometry, uploaded where it was not there, with one user more.
    GpuGeometry* get(const SoShape& shape, const SoState& state, Tangents tangents = Tangents::None);
    /// One user less; removeUnused() frees what has no user any more.
    void release(GpuGeometry* geometry);
    /// Nothing has a user any more.
    void releaseAllUsers();
    void removeUnused();
    /// Frees everything.
    void release();
    std::int64_t getUploadedBytes() const { return m_uploadedBytes; }
    std::int64_t getUploads() const { return m_uploads; }

private:
    void upload(const SoGeometry& geometry, Tangents tangents, GpuGeometry& to);

    std::unordered_map<SoGeometryKey, GpuGeometry, SoGeometryKeyHash> m_geometry;
    std::int64_t m_uploadedBytes = 0;
    std::int64_t m_uploads = 0;
    std::vector<GpuGeometry*> m_unused; // perhaps used again since
};

} // namespace xsg
