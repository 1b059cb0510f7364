// SPDX-License-Identifier: MIT
#include <xsg/render/GeometryStore.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/frames/SoFramePhase.h>
#include <xsg/render/Shader.h>
#include <xsg/render/Tangents.h>

#include <algorithm>

namespace
{

template <class T>
GLsizeiptr bytesOf(const std::vector<T>& values)
{
    return static_cast<GLsizeiptr>(values.size() * sizeof(T));
}

// Appends the values to the bound buffer and points the attribute at them.
template <class T>
void addBlock(GLuint attribute, const std::vector<T>& values, GLintptr& offset)
{
    if (values.empty())
        return;
    glBufferSubData(GL_ARRAY_BUFFER, offset, bytesOf(values), values.data());
    glVertexAttribPointer(attribute, T::Size, GL_FLOAT, GL_FALSE, 0, reinterpret_cast<const void*>(offset));
    glEnableVertexAttribArray(attribute);
    offset += bytesOf(values);
}

std::vector<SbVec4f> tangentsOf(const SoGeometry& geometry, xsg::GeometryStore::Tangents tangents)
{
    using Tangents = xsg::GeometryStore::Tangents;
    if (tangents == Tangents::None)
        return {};
    return xsg::computeTangents(geometry, tangents == Tangents::First ? geometry.textureCoordinates
                                                                      : geometry.secondTextureCoordinates);
}

void release(xsg::GpuGeometry& geometry)
{
    geometry.vertexArray.release();
    geometry.vertices.release();
    geometry.indices.release();
}

} // namespace

xsg::GpuGeometry* xsg::GeometryStore::get(const SoShape& shape, const SoState& state, Tangents tangents)
{
    SoGeometryKey key = shape.getGeometryKey(state);
    if (tangents != Tangents::None)
        key.add(~std::uint64_t{0}, static_cast<std::uint64_t>(tangents));
    const auto [place, isNew] = m_geometry.try_emplace(key);
    GpuGeometry& kept = place->second;
    (isNew ? feeds.geometryMisses : feeds.geometryHits).add();
    if (isNew) {
        SoGeometry geometry;
        shape.generate(state, geometry);
        upload(geometry, tangents, kept);
        kept.key = place->first;
    }
    ++kept.users;
    return &kept;
}

void xsg::GeometryStore::upload(const SoGeometry& g, Tangents tangents, GpuGeometry& to)
{
    const SoFramePhase phase(SoFrame::Upload);
    to.kind = g.kind;
    to.indexCount = static_cast<GLsizei>(g.index.size());
    to.pointCount = static_cast<std::int64_t>(g.points.size());
    to.isScreenSpace = g.isScreenSpace;
    if (g.index.empty())
        return;
    glBindVertexArray(to.vertexArray.get());
    glBindBuffer(GL_ARRAY_BUFFER, to.vertices.get());
    const std::vector<SbVec4f> along = tangentsOf(g, tangents);
    const GLsizeiptr size = bytesOf(g.points) + bytesOf(g.normals) + bytesOf(g.textureCoordinates) +
                            bytesOf(g.colors) + bytesOf(along) + bytesOf(g.secondTextureCoordinates);
    glBufferData(GL_ARRAY_BUFFER, size, nullptr, GL_STATIC_DRAW);
    GLintptr offset = 0;
    addBlock(PointAttribute, g.points, offset);
    addBlock(NormalAttribute, g.normals, offset);
    addBlock(TextureAttribute, g.textureCoordinates, offset);
    addBlock(ColorAttribute, g.colors, offset);
    addBlock(TangentAttribute, along, offset);
    addBlock(SecondTextureAttribute, g.secondTextureCoordinates, offset);
    for (GLuint i = InstanceAttribute; i < InstanceAttribute + 8; ++i) {
        glVertexAttribDivisor(i, 1);
        glEnableVertexAttribArray(i);
    }
    glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, to.indices.get());
    glBufferData(GL_ELEMENT_ARRAY_BUFFER, bytesOf(g.index), g.index.data(), GL_STATIC_DRAW);
    glBindVertexArray(0);
    m_uploadedBytes += size + bytesOf(g.index);
    ++m_uploads;
}

void xsg::GeometryStore::release(GpuGeometry* geometry)
{
    if (--geometry->users == 0)
        m_unused.push_back(geometry);
}

void xsg::GeometryStore::releaseAllUsers()
{
    m_unused.clear();
    for (auto& [key, geometry] : m_geometry) {
        geometry.users = 0;
        m_unused.push_back(&geometry);
    }
}

void xsg::GeometryStore::removeUnused()
{
    // The same one may be listed twice: it was used and released again in between.
    std::sort(m_unused.begin(), m_unused.end());
    m_unused.erase(std::unique(m_unused.begin(), m_unused.end()), m_unused.end());
    for (GpuGeometry* geometry : m_unused) {
        if (geometry->users > 0)
            continue;
        ::release(*geometry);
        m_geometry.erase(SoGeometryKey(geometry->key));
    }
    m_unused.clear();
}

void xsg::GeometryStore::release()
{
    for (auto& [key, geometry] : m_geometry)
        ::release(geometry);
    m_geometry.clear();
    m_unused.clear();
}
