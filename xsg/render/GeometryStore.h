// Geometry in vertex buffers, made once per key and kept while scenes use it.
#pragma once

#include <xsg/actions/SoGeometry.h>
#include <xsg/nodes/SoShape.h>
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
    std::uint64_t usedAt = 0;
};

class GeometryStore
{
public:
    // The shape's geometry, uploaded where it was not there; valid until it was not asked for in a whole
    // round.
    GpuGeometry* get(const SoShape& shape, const SoState& state);
    void beginRound() { ++m_round; }
    // Gives back what was not asked for since beginRound().
    void endRound();
    void release();
    std::int64_t getUploadedBytes() const { return m_uploadedBytes; }
    std::int64_t getUploads() const { return m_uploads; }

private:
    void upload(const SoGeometry& geometry, GpuGeometry& to);

    std::unordered_map<SoGeometryKey, GpuGeometry, SoGeometryKeyHash> m_geometry;
    std::uint64_t m_round = 0;
    std::int64_t m_uploadedBytes = 0;
    std::int64_t m_uploads = 0;
};

} // namespace xsg
