// SPDX-License-Identifier: MIT
// What of surfaces is shown: their look, their edges, where they face.
#include <xsg/render/SoRendererImpl.h>

namespace
{

// Drawing adds this for each time that a pixel is drawn: dark red at first, then yellow, then white.
const SbVec4f OverdrawColor(0.25F, 0.08F, 0.03F, 1);
const SbVec4f EdgeColor(0.04F, 0.04F, 0.04F, 0.5F);

xsg::Shader::Look lookOf(SoRenderer::Shading shading)
{
    using Look = xsg::Shader::Look;
    constexpr Look Looks[] = {Look::Full, Look::Full, Look::Normals, Look::TextureCoordinates, Look::Flat};
    return Looks[static_cast<int>(shading)];
}

} // namespace

// Where OpenGL refuses a program, the scene has its full look.
bool SoRenderer::Impl::beginShading()
{
    const xsg::Shader::Look look = shading == Shading::WithEdges ? xsg::Shader::Look::Flat : lookOf(shading);
    if (shading == Shading::Full || !m_shader.prepareLook(look, error))
        return false;
    m_shader.setLook(lookOf(shading));
    m_shader.setFlatColor(shading == Shading::Overdraw ? OverdrawColor : EdgeColor);
    if (shading == Shading::Overdraw) {
        glDisable(GL_DEPTH_TEST);
        setBlending();
    }
    if (shading == Shading::WithEdges) { // surfaces step back behind their edges
        glEnable(GL_POLYGON_OFFSET_FILL);
        glPolygonOffset(1, 1);
    }
    return true;
}

void SoRenderer::Impl::endShading()
{
    glDisable(GL_POLYGON_OFFSET_FILL);
    m_shader.setLook(xsg::Shader::Look::Full);
    glDisable(GL_BLEND);
    glEnable(GL_DEPTH_TEST);
    m_state.setEdgesOnly(wireframe);
}

void SoRenderer::Impl::setBlending()
{
    glEnable(GL_BLEND);
    if (shading == Shading::Overdraw)
        glBlendFunc(GL_ONE, GL_ONE);
    else
        glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
}

void SoRenderer::Impl::clearPicture()
{
    const bool countsLayers = shading == Shading::Overdraw;
    const SbColor& ground = countsLayers ? SbColor() : background;
    glClearColor(ground[0], ground[1], ground[2], countsLayers ? 1.0F : backgroundOpacity);
    glClearDepth(1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void SoRenderer::Impl::planEdges()
{
    m_tasks.clear();
    m_nextTask = 0;
    if (shading != Shading::WithEdges || !m_isShaded)
        return;
    const auto planTriangles = [this](const xsg::InstanceList& instances, const xsg::Run& run) {
        if (instances.getItem(m_list.items, run.first).geometry->kind == SoGeometry::Kind::Triangles)
            plan(instances, run);
    };
    forEachVisible(
        [&](const xsg::Run& run, const xsg::GpuGeometry& /*geometry*/) { planTriangles(m_opaque, run); });
    m_opaqueTasks = m_tasks.size();
    for (const xsg::Run& batch : m_transparent.getBatches())
        planTriangles(m_transparent, batch);
}

bool SoRenderer::Impl::drawEdges(Time until)
{
    bool isFinished = true;
    if (!m_tasks.empty()) {
        glDisable(GL_POLYGON_OFFSET_FILL);
        m_shader.setLook(xsg::Shader::Look::Flat);
        m_state.setEdgesOnly(true);
        setBlending();
        isFinished =
            drawTasks(m_opaque, m_opaqueTasks, until) && drawTasks(m_transparent, m_tasks.size(), until);
    }
    if (isFinished)
        m_phase = Phase::Marks;
    return isFinished;
}
