#include <xsg/render/SoRenderer.h>

#include <xsg/base/SbTime.h>
#include <xsg/counters/LibraryCounters.h>
#include <xsg/errors/SoGLError.h>
#include <xsg/nodes/SoDrawStyle.h>
#include <xsg/nodes/SoDrawingCallback.h>
#include <xsg/nodes/SoFog.h>
#include <xsg/nodes/SoPerspectiveCamera.h>
#include <xsg/nodes/SoSeparator.h>
#include <xsg/render/Frustum.h>
#include <xsg/render/RenderList.h>

namespace
{

constexpr GLenum Primitives[] = {GL_TRIANGLES, GL_LINES, GL_POINTS};

void feedCounters(const SoRenderer::Statistics& frame)
{
    xsg::feeds.frames.add();
    xsg::feeds.renderMicroseconds.add(std::llround(frame.seconds * 1e6));
    xsg::feeds.nodesTraversed.add(frame.nodes);
    xsg::feeds.drawCalls.add(frame.drawCalls);
    xsg::feeds.triangles.add(frame.triangles);
    xsg::feeds.vertices.add(frame.points);
    xsg::feeds.shapesCulled.add(frame.culled);
    xsg::feeds.stateChanges.add(frame.stateChanges);
    xsg::feeds.bufferUploads.add(frame.bufferUploads);
    xsg::feeds.bufferBytes.add(frame.uploadedBytes);
    xsg::feeds.textureBytes.add(frame.textureBytes);
}

// One error a frame is told; more of them would only repeat it.
void reportErrors()
{
    const GLenum first = glGetError();
    for (int i = 0; i < 16 && glGetError() != GL_NO_ERROR; ++i) {
    }
    if (first != GL_NO_ERROR)
        SoGLError::post(first, "SoRenderer");
}

// Where a point is drawn from: the eye's matrices for one frame.
struct EyeView {
    SbMatrix view;
    SbMatrix projection;
    SbMatrix viewProjection;
    SbVec4f eye; // fourth number 0: a direction
};

} // namespace

class SoRenderer::Impl
{
public:
    bool render(SoNode* root, const SoCamera* camera, int width, int height);
    void releaseGL();

    SbColor background{0, 0, 0};
    float backgroundOpacity = 1;
    bool wireframe = false;
    const SoNode* highlight = nullptr;
    SbColor highlightColor{1, 0.6F, 0.1F};
    bool headlight = true;
    std::string error;
    Statistics statistics;
    xsg::RenderList list;

private:
    bool prepare();
    void prepareFrame(int width, int height);
    void clearPicture();
    void updateList(SoNode* root, const SoCamera* camera);
    SbVec3f eyeOf(const SoCamera& camera) const;
    EyeView lookThrough(const SoCamera* camera, float aspect);
    void drawOpaque(const xsg::Frustum& frustum);
    void drawTransparent(const xsg::Frustum& frustum, const EyeView& eye);
    void drawHighlighted();
    void drawCallbacks(const EyeView& eye, int width, int height);
    void add(const xsg::RenderItem& item);
    void drawCollected();
    void drawBatch(const xsg::RenderItem& first, std::size_t from, std::size_t count);
    void setSurroundings(int index);
    void setPolygonMode(const SoDrawStyle* style);
    void finishFrame();

    xsg::Shader m_shader;
    xsg::GeometryStore m_geometry;
    xsg::TextureStore m_textures;
    xsg::GlBuffer m_instances;
    // Of what is drawn next: its data for OpenGL, and the item each comes from.
    std::vector<xsg::InstanceData> m_data;
    std::vector<const xsg::RenderItem*> m_drawn;
    std::vector<std::pair<float, std::uint32_t>> m_depths;
    int m_currentSurroundings = -1;
    SoRef<SoPerspectiveCamera> m_ownCamera;
    std::vector<SoLightSource> m_headlights;
    SbVec3f m_sceneEye; // of the scene's own camera
    int m_width = 0;
    int m_height = 0;
};

bool SoRenderer::Impl::prepare()
{
    if (epoxy_gl_version() < 33) {
        error = "Drawing needs OpenGL 3.3, but this system offers only " +
                std::to_string(epoxy_gl_version() / 10) + "." + std::to_string(epoxy_gl_version() % 10) + ".";
        return false;
    }
    return m_shader.prepare(error);
}

bool SoRenderer::Impl::render(SoNode* root, const SoCamera* camera, int width, int height)
{
    const SbElapsedTime time;
    statistics = {};
    error.clear();
    if (width <= 0 || height <= 0)
        return true;
    if (!prepare())
        return false;
    prepareFrame(width, height);
    clearPicture();
    if (root) {
        const std::int64_t uploads = m_geometry.getUploads();
        const std::int64_t bytes = m_geometry.getUploadedBytes();
        const std::int64_t textureBytes = m_textures.getUploadedBytes();
        updateList(root, camera);
        const EyeView eye = lookThrough(camera, static_cast<float>(width) / static_cast<float>(height));
        const xsg::Frustum frustum(eye.viewProjection);
        m_shader.use();
        m_shader.setView(eye.viewProjection, eye.eye, width, height);
        m_shader.setOverride({});
        drawOpaque(frustum);
        drawCallbacks(eye, width, height);
        drawTransparent(frustum, eye);
        drawHighlighted();
        statistics.shapes = static_cast<std::int64_t>(list.getOpaque().size() + list.getTransparent().size());
        statistics.bufferUploads += m_geometry.getUploads() - uploads;
        statistics.uploadedBytes += m_geometry.getUploadedBytes() - bytes;
        statistics.textureBytes = m_textures.getUploadedBytes() - textureBytes;
    }
    finishFrame();
    reportErrors();
    statistics.seconds = time.getElapsed();
    feedCounters(statistics);
    return true;
}

void SoRenderer::Impl::prepareFrame(int width, int height)
{
    m_width = width;
    m_height = height;
    m_currentSurroundings = -1;
    // The context may be shared with a toolkit that leaves its own settings behind.
    glViewport(0, 0, width, height);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glDepthMask(GL_TRUE);
    glColorMask(GL_TRUE, GL_TRUE, GL_TRUE, GL_TRUE);
    glDisable(GL_SCISSOR_TEST);
    glDisable(GL_STENCIL_TEST);
    glDisable(GL_CULL_FACE);
    glDisable(GL_BLEND);
    glActiveTexture(GL_TEXTURE0);
}

void SoRenderer::Impl::clearPicture()
{
    glClearColor(background[0], background[1], background[2], backgroundOpacity);
    glClearDepth(1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void SoRenderer::Impl::updateList(SoNode* root, const SoCamera* camera)
{
    // Where the eye stands is known once the scene has been walked, and matters only to what chooses by
    // distance: a second walk then sees it where it is. The camera of the last walk may be gone by now.
    for (int walk = 0; walk < 2; ++walk) {
        const SbVec3f eye = camera ? eyeOf(*camera) : m_sceneEye;
        if (!list.update(root, {camera, highlight, eye}, m_geometry, m_textures))
            return;
        m_sceneEye = list.getCamera() ? eyeOf(*list.getCamera()) : SbVec3f();
        statistics.nodes += list.getNumVisited();
    }
}

SbVec3f SoRenderer::Impl::eyeOf(const SoCamera& camera) const
{
    return list.getCameraMatrix().multPoint(camera.position.getValue());
}

EyeView SoRenderer::Impl::lookThrough(const SoCamera* camera, float aspect)
{
    if (!camera)
        camera = list.getCamera();
    if (!camera) {
        if (!m_ownCamera)
            m_ownCamera = SoRef<SoPerspectiveCamera>(new SoPerspectiveCamera);
        m_ownCamera->viewAll(list.getBox(), aspect);
        camera = m_ownCamera.get();
    }
    EyeView eye;
    // The identity where the camera stands outside of the scene.
    const SbMatrix& toWorld = list.getCameraMatrix();
    eye.view = toWorld.inverse() * camera->getViewMatrix();
    eye.projection = camera->getProjectionMatrix(aspect);
    eye.viewProjection = eye.view * eye.projection;
    const bool isParallel = eye.projection[2][3] == 0;
    const SbVec3f place = isParallel ? toWorld.multDirection(camera->getDirection()).normalized() * -1.0F
                                     : toWorld.multPoint(camera->position.getValue());
    eye.eye = SbVec4f(place[0], place[1], place[2], isParallel ? 0.0F : 1.0F);
    SoLightSource light;
    light.direction = toWorld.multDirection(camera->getDirection()).normalized();
    m_headlights.assign(headlight && !list.hasLights() ? 1 : 0, light);
    return eye;
}

void SoRenderer::Impl::add(const xsg::RenderItem& item)
{
    m_data.push_back(item.instance);
    m_drawn.push_back(&item);
}

void SoRenderer::Impl::drawOpaque(const xsg::Frustum& frustum)
{
    const auto& items = list.getItems();
    for (const std::uint32_t i : list.getOpaque()) {
        // Text keeps its size on the screen, so its box says little about what of it is seen.
        if (items[i].geometry->isScreenSpace || frustum.mayShow(items[i].box))
            add(items[i]);
        else
            ++statistics.culled;
    }
    drawCollected();
}

void SoRenderer::Impl::drawTransparent(const xsg::Frustum& frustum, const EyeView& eye)
{
    if (list.getTransparent().empty())
        return;
    const auto& items = list.getItems();
    m_depths.clear();
    for (const std::uint32_t i : list.getTransparent()) {
        if (frustum.mayShow(items[i].box))
            m_depths.emplace_back(eye.view.multPoint(items[i].box.getCenter())[2], i);
        else
            ++statistics.culled;
    }
    std::sort(m_depths.begin(), m_depths.end()); // the eye looks along negative z: the farthest comes first
    for (const auto& [depth, i] : m_depths)
        add(items[i]);
    glEnable(GL_BLEND);
    glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    glDepthMask(GL_FALSE);
    drawCollected();
    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
}

void SoRenderer::Impl::drawHighlighted()
{
    if (!highlight)
        return;
    for (const xsg::RenderItem& item : list.getItems()) {
        if (item.isHighlighted && item.geometry->indexCount > 0)
            add(item);
    }
    if (m_drawn.empty())
        return;
    m_shader.setOverride(SbVec4f(highlightColor[0], highlightColor[1], highlightColor[2], 1));
    const bool before = std::exchange(wireframe, true);
    m_currentSurroundings = -1;
    glEnable(GL_POLYGON_OFFSET_LINE);
    glPolygonOffset(-1, -1);
    drawCollected();
    glDisable(GL_POLYGON_OFFSET_LINE);
    wireframe = before;
    m_currentSurroundings = -1;
}

void SoRenderer::Impl::drawCallbacks(const EyeView& eye, int width, int height)
{
    for (const xsg::CallbackItem& item : list.getCallbacks()) {
        if (!item.node->getCallback())
            continue;
        item.node->getCallback()({item.modelMatrix, eye.view, eye.projection, width, height});
        prepareFrame(width, height);
        m_shader.use();
    }
}

// Neighbours that share surroundings and geometry are drawn by one call.
void SoRenderer::Impl::drawCollected()
{
    if (m_drawn.empty())
        return;
    glBindBuffer(GL_ARRAY_BUFFER, m_instances.get());
    const std::size_t bytes = m_data.size() * sizeof(xsg::InstanceData);
    glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(bytes), m_data.data(), GL_STREAM_DRAW);
    ++statistics.bufferUploads;
    statistics.uploadedBytes += static_cast<std::int64_t>(bytes);
    for (std::size_t from = 0; from < m_drawn.size();) {
        const xsg::RenderItem& first = *m_drawn[from];
        std::size_t to = from + 1;
        while (to < m_drawn.size() && m_drawn[to]->geometry == first.geometry &&
               m_drawn[to]->surroundings == first.surroundings)
            ++to;
        drawBatch(first, from, to - from);
        from = to;
    }
    m_data.clear();
    m_drawn.clear();
}

void SoRenderer::Impl::drawBatch(const xsg::RenderItem& first, std::size_t from, std::size_t count)
{
    xsg::GpuGeometry& geometry = *first.geometry;
    setSurroundings(first.surroundings);
    m_shader.setScreenSpace(geometry.isScreenSpace);
    glBindVertexArray(geometry.vertexArray.get());
    glBindBuffer(GL_ARRAY_BUFFER, m_instances.get());
    // What a geometry lacks: no normal is drawn without light, a red below 0 takes the material's colour.
    glVertexAttrib3f(xsg::NormalAttribute, 0, 0, 0);
    glVertexAttrib2f(xsg::TextureAttribute, 0, 0);
    glVertexAttrib3f(xsg::ColorAttribute, -1, -1, -1);
    for (GLuint i = 0; i < 8; ++i) {
        const std::size_t offset = from * sizeof(xsg::InstanceData) + i * 4 * sizeof(float);
        const GLuint attribute = xsg::InstanceAttribute + i;
        glVertexAttribPointer(attribute, 4, GL_FLOAT, GL_FALSE, sizeof(xsg::InstanceData),
                              reinterpret_cast<const void*>(offset));
        glVertexAttribDivisor(attribute, 1);
        glEnableVertexAttribArray(attribute);
    }
    glDrawElementsInstanced(Primitives[static_cast<int>(geometry.kind)], geometry.indexCount, GL_UNSIGNED_INT,
                            nullptr, static_cast<GLsizei>(count));
    ++statistics.drawCalls;
    const auto copies = static_cast<std::int64_t>(count);
    statistics.points += geometry.pointCount * copies;
    if (geometry.kind == SoGeometry::Kind::Triangles)
        statistics.triangles += geometry.indexCount / 3 * copies;
}

void SoRenderer::Impl::setSurroundings(int index)
{
    if (index == m_currentSurroundings)
        return;
    m_currentSurroundings = index;
    ++statistics.stateChanges;
    const xsg::Surroundings& now = list.getSurroundings(index);
    static const std::vector<SbPlane> noPlanes;
    m_shader.setLights(now.lights ? *now.lights : m_headlights, now.ambientLight);
    m_shader.setClipPlanes(now.clipPlanes ? *now.clipPlanes : noPlanes);
    if (now.texture)
        glBindTexture(GL_TEXTURE_2D, now.texture->texture.get());
    m_shader.setTexture(now.textureModel, now.textureMatrix ? now.textureMatrix->front() : SbMatrix());
    if (now.fog)
        m_shader.setFog(now.fog->kind.getValue(), now.fog->color.getValue(), now.fog->visibility.getValue());
    else
        m_shader.setFog(-1, {}, 1);
    setPolygonMode(now.drawStyle);
}

void SoRenderer::Impl::setPolygonMode(const SoDrawStyle* style)
{
    const int kind = style && !style->style.isIgnored() ? style->style.getValue() : SoDrawStyle::Filled;
    const bool edges = wireframe || kind == SoDrawStyle::Lines;
    glPolygonMode(GL_FRONT_AND_BACK, edges ? GL_LINE : kind == SoDrawStyle::Points ? GL_POINT : GL_FILL);
    GLfloat widths[2] = {1, 1};
    glGetFloatv(GL_ALIASED_LINE_WIDTH_RANGE, widths);
    const float width = style ? style->lineWidth.getValue() : 1.0F;
    glLineWidth(width > widths[0] ? std::min(width, widths[1]) : widths[0]);
    const float size = style ? style->pointSize.getValue() : 1.0F;
    glPointSize(size > 1 ? size : 1.0F);
}

void SoRenderer::Impl::finishFrame()
{
    glBindVertexArray(0);
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glBindTexture(GL_TEXTURE_2D, 0);
    glUseProgram(0);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    for (GLenum i = 0; i < xsg::Shader::MaxClipPlanes; ++i)
        glDisable(GL_CLIP_DISTANCE0 + i);
}

void SoRenderer::Impl::releaseGL()
{
    list.clear();
    m_shader.release();
    m_geometry.release();
    m_textures.release();
    m_instances.release();
}

SoRenderer::SoRenderer()
    : m_impl(std::make_unique<Impl>())
{
}

SoRenderer::~SoRenderer() = default;

bool SoRenderer::render(SoNode* root, const SoCamera* camera, int width, int height)
{
    return m_impl->render(root, camera, width, height);
}

const std::string& SoRenderer::getErrorText() const
{
    return m_impl->error;
}

void SoRenderer::releaseGL()
{
    m_impl->releaseGL();
}

void SoRenderer::setBackground(const SbColor& color, float opacity)
{
    m_impl->background = color;
    m_impl->backgroundOpacity = opacity;
}

void SoRenderer::setWireframe(bool on)
{
    m_impl->wireframe = on;
}

void SoRenderer::setHighlight(const SoNode* node)
{
    m_impl->highlight = node;
}

void SoRenderer::setHighlightColor(const SbColor& color)
{
    m_impl->highlightColor = color;
}

void SoRenderer::setHeadlight(bool on)
{
    m_impl->headlight = on;
}

const SoRenderer::Statistics& SoRenderer::getStatistics() const
{
    return m_impl->statistics;
}

SbBox3f SoRenderer::getSceneBox() const
{
    return m_impl->list.getBox();
}
