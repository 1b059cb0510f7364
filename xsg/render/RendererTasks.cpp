// SPDX-License-Identifier: MIT
// What a phase draws, as calls of OpenGL.
#include <xsg/render/SoRendererImpl.h>

namespace
{

constexpr GLenum Primitives[] = {GL_TRIANGLES, GL_LINES, GL_POINTS};
// What takes too little time to draw it in pieces.
constexpr std::int64_t FewIndices = xsg::DrawPacer::MostIndices;
// With more copies than this in a row, it is not visible which of a body's sides was blended first.
constexpr std::uint32_t FewCopies = 64;

// Whether the matrix mirrors, which turns front faces into back faces.
bool isMirrored(const xsg::InstanceData& instance)
{
    const float* m = instance.matrix;
    return cross(SbVec3f(m[0], m[1], m[2]), SbVec3f(m[4], m[5], m[6])).dot(SbVec3f(m[8], m[9], m[10])) < 0;
}

} // namespace

// What is in sight, batch by batch. Returns how much that is.
std::int64_t SoRenderer::Impl::planVisible()
{
    return forEachVisible([&](const xsg::Run& part, const xsg::GpuGeometry& geometry) {
        plan(m_opaque, part);
        countDrawn(geometry, part.end - part.first);
    });
}

void SoRenderer::Impl::planTransparent()
{
    for (const xsg::Run& batch : m_transparent.getBatches()) {
        planBothSides(m_transparent, batch);
        countDrawn(*m_transparent.getItem(m_list.items, batch.first).geometry, batch.end - batch.first);
    }
}

// A body's far side is blended before its near side.
void SoRenderer::Impl::planBothSides(const xsg::InstanceList& instances, const xsg::Run& run)
{
    const auto& items = m_list.items;
    const bool isFlat = instances.getItem(items, run.first).geometry->kind != SoGeometry::Kind::Triangles;
    if (isFlat || run.end - run.first > FewCopies) {
        plan(instances, run);
        return;
    }
    for (std::uint32_t place = run.first; place < run.end; ++place) {
        const bool mirrored = isMirrored(instances.getItem(items, place).instance);
        for (const Faces faces : {Faces::Back, Faces::Front})
            plan(instances, {place, place + 1}, faces, mirrored);
    }
}

// Neighbours that one call can draw, in as many as it takes.
void SoRenderer::Impl::plan(const xsg::InstanceList& instances, const xsg::Run& run, Faces faces,
                            bool isMirrored)
{
    const xsg::GpuGeometry& geometry = *instances.getItem(m_list.items, run.first).geometry;
    m_pacer.cut(geometry.indexCount, static_cast<GLsizei>(run.end - run.first),
                3 - static_cast<GLsizei>(geometry.kind), [&](const xsg::DrawPart& part) {
                    m_tasks.push_back({run, part, faces, isMirrored});
                });
    ++statistics.drawCalls;
}

void SoRenderer::Impl::countDrawn(const xsg::GpuGeometry& geometry, std::int64_t copies)
{
    statistics.points += geometry.pointCount * copies;
    if (geometry.kind == SoGeometry::Kind::Triangles)
        statistics.triangles += geometry.indexCount / 3 * copies;
}

bool SoRenderer::Impl::drawTasks(xsg::InstanceList& instances, std::size_t end, Time until)
{
    constexpr std::size_t CallsBetweenLooks = 64; // at the clock
    std::int64_t indices = 0;
    while (m_nextTask < end) {
        const xsg::DrawTask& task = m_tasks[m_nextTask++];
        draw(instances, task);
        const std::int64_t drawn = std::int64_t{task.part.indexCount} * task.part.copies;
        m_indicesDrawn += drawn;
        indices += drawn;
        const bool isTimeToLook = indices >= FewIndices / 8 || m_nextTask % CallsBetweenLooks == 0;
        if (!isTimeToLook || m_indicesDrawn < FewIndices)
            continue;
        indices = 0;
        if (std::chrono::steady_clock::now() >= until)
            return m_nextTask == end && end == m_tasks.size();
    }
    return true;
}

void SoRenderer::Impl::draw(xsg::InstanceList& instances, const xsg::DrawTask& task)
{
    const xsg::RenderItem& first = instances.getItem(m_list.items, task.run.first);
    m_state.setState(m_list.drawStates.get(first.drawState));
    m_state.setGeometry(*first.geometry);
    m_state.setFaces(task.faces, task.isMirrored);
    instances.bind(task.run.first + static_cast<std::uint32_t>(task.part.firstCopy));
    const auto offset = static_cast<std::uintptr_t>(task.part.firstIndex) * sizeof(GLuint);
    glDrawElementsInstanced(Primitives[static_cast<int>(first.geometry->kind)], task.part.indexCount,
                            GL_UNSIGNED_INT, reinterpret_cast<const void*>(offset), task.part.copies);
    m_pacer.drawn(std::int64_t{task.part.indexCount} * task.part.copies);
}
