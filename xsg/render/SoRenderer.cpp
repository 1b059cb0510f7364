// SPDX-License-Identifier: MIT
#include <xsg/render/SoRenderer.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>
#include <xsg/render/DrawPacer.h>
#include <xsg/render/DrawState.h>
#include <xsg/render/GlMessages.h>
#include <xsg/render/InstanceList.h>
#include <xsg/render/Outline.h>
#include <xsg/render/OverlayPainter.h>
#include <xsg/render/RenderListUpdater.h>
#include <xsg/values/SbTime.h>

#include <algorithm>
#include <optional>

namespace
{

constexpr GLenum Primitives[] = {GL_TRIANGLES, GL_LINES, GL_POINTS};
// Drawing this many corners that are out of sight costs less than another call.
constexpr std::int64_t CheapCorners = 256;
// With more copies than this in a row, it is not visible which of a body's sides was blended first.
constexpr std::uint32_t FewCopies = 64;

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

// Drawing adds this for each time that a pixel is drawn: dark red at first, then yellow, then white.
const SbVec4f OverdrawColor(0.25F, 0.08F, 0.03F, 1);
const SbVec4f EdgeColor(0.04F, 0.04F, 0.04F, 0.5F);

xsg::Shader::Look lookOf(SoRenderer::Shading shading)
{
    using Look = xsg::Shader::Look;
    constexpr Look Looks[] = {Look::Full, Look::Full, Look::Normals, Look::TextureCoordinates, Look::Flat};
    return Looks[static_cast<int>(shading)];
}

// From the whole picture to the part of it.
SbMatrix cropTo(const SoRenderer::Part& part, int width, int height)
{
    SbMatrix crop;
    const auto along = [&crop](int axis, int whole, int first, int size) {
        crop[axis][axis] = static_cast<float>(whole) / static_cast<float>(size);
        crop[3][axis] = static_cast<float>(whole - 2 * first - size) / static_cast<float>(size);
    };
    if (part.wholeWidth > 0) {
        along(0, part.wholeWidth, part.left, width);
        along(1, part.wholeHeight, part.bottom, height);
    }
    return crop;
}

// Whether the matrix mirrors, which turns front faces into back faces.
bool isMirrored(const xsg::InstanceData& instance)
{
    const float* m = instance.matrix;
    return cross(SbVec3f(m[0], m[1], m[2]), SbVec3f(m[4], m[5], m[6])).dot(SbVec3f(m[8], m[9], m[10])) < 0;
}

// The places that are in both; each in order.
std::vector<xsg::Run> common(const std::vector<xsg::Run>& some, const std::vector<xsg::Run>& others)
{
    std::vector<xsg::Run> both;
    auto other = others.begin();
    for (auto one = some.begin(); one != some.end() && other != others.end();) {
        const xsg::Run part{std::max(one->first, other->first), std::min(one->end, other->end)};
        if (part.first < part.end)
            both.push_back(part);
        if (one->end < other->end)
            ++one;
        else
            ++other;
    }
    return both;
}

// The eye's matrices for one frame.
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
    template <class Reader>
    void setImageReader(Reader reader);

    SbColor background{0, 0, 0};
    float backgroundOpacity = 1;
    bool wireframe = false;
    Shading shading = Shading::Full;
    std::optional<SbPlane> clipPlane;
    Part part;
    void setHighlight(const std::vector<std::uint64_t>& nodeIds);
    SbColor highlightColor{1, 0.6F, 0.1F};
    float highlightThickness = 2;
    bool headlight = true;
    SoOverlay overlay;
    const SoHiding* hiding = nullptr;
    std::string error;
    Statistics statistics;
    const xsg::RenderList& getList() const { return m_list; }

private:
    using Faces = xsg::DrawState::Faces;
    struct Uploads {
        std::int64_t buffers;
        std::int64_t bytes;
        std::int64_t textureBytes;
    };

    bool prepare();
    void clearPicture();
    void drawScene(SoNode* root, const SoCamera* camera, int width, int height);
    void updateList(SoNode* root, const SoCamera* camera);
    SbVec3f eyeOf(const SoCamera& camera) const;
    EyeView lookThrough(const SoCamera* camera, int width, int height);
    bool beginShading();
    void endShading();
    void setBlending();
    void drawEdges();
    void drawOpaque(const xsg::RenderChanges& changes, const xsg::Frustum& frustum);
    void drawTransparent(const xsg::RenderChanges& changes, const xsg::Frustum& frustum, const EyeView& eye);
    // What is marked by a line of one thickness.
    struct Marked {
        std::vector<std::uint64_t> nodeIds;
        std::vector<std::uint32_t> items;
        std::vector<xsg::Run> opaque;
        bool isOther = false; // than what items are of
    };
    void drawHighlight(const xsg::RenderChanges& changes, int width, int height);
    void drawOutline(Marked& marked, const xsg::RenderChanges& changes, int width, int height,
                     float thickness);
    void collect(Marked& marked, const xsg::RenderChanges& changes);
    void drawMask(xsg::InstanceList& instances, const std::vector<xsg::Run>& runs);
    void drawCallbacks(const EyeView& eye, int width, int height);
    void drawVisible(xsg::InstanceList& instances);
    void drawBothSides(xsg::InstanceList& instances, const xsg::Run& run);
    void drawRun(xsg::InstanceList& instances, const xsg::Run& run);
    void countDrawn(const xsg::GpuGeometry& geometry, std::int64_t copies);
    Uploads countUploads() const;

    xsg::GlMessages m_messages;
    xsg::Shader m_shader;
    xsg::DrawState m_state{m_shader};
    xsg::DrawPacer m_pacer;
    xsg::GeometryStore m_geometry;
    xsg::TextureStore m_textures;
    xsg::RenderListUpdater m_updater{m_geometry, m_textures};
    const xsg::RenderList& m_list = m_updater.getList();
    xsg::InstanceList m_opaque;
    xsg::InstanceList m_transparent;
    std::vector<xsg::Run> m_visible;
    std::vector<std::pair<float, std::uint32_t>> m_depths;
    std::vector<std::uint32_t> m_order;
    xsg::Outline m_outline;
    xsg::OverlayPainter m_overlayPainter;
    Marked m_current;
    Marked m_others;
    SoRef<SoPerspectiveCamera> m_ownCamera;
    std::vector<SoLightSource> m_headlights;
    SbVec3f m_sceneEye; // of the scene's own camera
};

bool SoRenderer::Impl::prepare()
{
    if (epoxy_gl_version() < 33) {
        error = "Drawing needs OpenGL 3.3, but this system offers only " +
                std::to_string(epoxy_gl_version() / 10) + "." + std::to_string(epoxy_gl_version() % 10) + ".";
        return false;
    }
    m_messages.listen();
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
    m_shader.setViewPlane(clipPlane ? &*clipPlane : nullptr);
    m_state.begin(width, height, m_headlights);
    m_pacer.begin();
    clearPicture();
    if (root)
        drawScene(root, camera, width, height);
    m_pacer.end();
    m_state.end();
    m_messages.collect("SoRenderer");
    statistics.seconds = time.getElapsed();
    feedCounters(statistics);
    return true;
}

void SoRenderer::Impl::drawScene(SoNode* root, const SoCamera* camera, int width, int height)
{
    const Uploads before = countUploads();
    updateList(root, camera);
    const xsg::RenderChanges changes = m_updater.takeChanges();
    const EyeView eye = lookThrough(camera, width, height);
    const xsg::Frustum frustum(eye.viewProjection);
    m_shader.use();
    m_shader.setView(eye.viewProjection, eye.eye, width, height);
    m_state.setEdgesOnly(wireframe);
    const bool isShaded = beginShading();
    drawOpaque(changes, frustum);
    if (shading != Shading::Overdraw)
        drawCallbacks(eye, width, height);
    drawTransparent(changes, frustum, eye);
    if (isShaded)
        endShading();
    drawHighlight(changes, width, height);
    if (!overlay.isEmpty())
        m_overlayPainter.draw(overlay, eye.viewProjection, width, height, error);
    statistics.shapes =
        static_cast<std::int64_t>(m_list.opaque.size() + m_list.transparent.size() + m_list.copies.size());
    statistics.stateChanges += m_state.getChanges();
    const Uploads after = countUploads();
    statistics.bufferUploads = after.buffers - before.buffers;
    statistics.uploadedBytes = after.bytes - before.bytes;
    statistics.textureBytes = after.textureBytes - before.textureBytes;
}

SoRenderer::Impl::Uploads SoRenderer::Impl::countUploads() const
{
    Uploads sum{m_geometry.getUploads(), m_geometry.getUploadedBytes(), m_textures.getUploadedBytes()};
    for (const xsg::InstanceList* each : {&m_opaque, &m_transparent}) {
        sum.buffers += each->getUploads();
        sum.bytes += each->getUploadedBytes();
    }
    return sum;
}

void SoRenderer::Impl::clearPicture()
{
    const bool countsLayers = shading == Shading::Overdraw;
    const SbColor& ground = countsLayers ? SbColor() : background;
    glClearColor(ground[0], ground[1], ground[2], countsLayers ? 1.0F : backgroundOpacity);
    glClearDepth(1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void SoRenderer::Impl::updateList(SoNode* root, const SoCamera* camera)
{
    m_updater.setHiding(hiding);
    // Where the eye stands is known once the scene has been walked, and matters only to what chooses by
    // distance: a second walk then uses the right place. The camera of the last walk may be destroyed by now.
    for (int walk = 0; walk < 2; ++walk) {
        const SbVec3f eye = camera ? eyeOf(*camera) : m_sceneEye;
        if (!m_updater.update(root, {camera, eye})) {
            if (walk == 0)
                m_updater.fitMemory();
            return;
        }
        m_sceneEye = m_list.camera ? eyeOf(*m_list.camera) : SbVec3f();
        statistics.nodes += m_updater.getNumVisited();
    }
}

SbVec3f SoRenderer::Impl::eyeOf(const SoCamera& camera) const
{
    return m_list.cameraMatrix.multPoint(camera.position.getValue());
}

EyeView SoRenderer::Impl::lookThrough(const SoCamera* camera, int width, int height)
{
    const bool isWhole = part.wholeWidth <= 0;
    const float aspect = static_cast<float>(isWhole ? width : part.wholeWidth) /
                         static_cast<float>(isWhole ? height : part.wholeHeight);
    if (!camera)
        camera = m_list.camera;
    if (!camera) {
        if (!m_ownCamera)
            m_ownCamera = SoRef<SoPerspectiveCamera>(new SoPerspectiveCamera);
        m_ownCamera->viewAll(m_list.box, aspect);
        camera = m_ownCamera.get();
    }
    EyeView eye;
    // The identity where the camera stands outside of the scene.
    const SbMatrix& toWorld = m_list.cameraMatrix;
    eye.view = toWorld.inverse().value_or(SbMatrix()) * camera->getViewMatrix();
    const SbMatrix projection = camera->getProjectionMatrix(aspect);
    eye.projection = isWhole ? projection : projection * cropTo(part, width, height);
    eye.viewProjection = eye.view * eye.projection;
    const bool isParallel = projection[2][3] == 0;
    const SbVec3f place = isParallel ? toWorld.multDirection(camera->getDirection()).normalized() * -1.0F
                                     : toWorld.multPoint(camera->position.getValue());
    eye.eye = SbVec4f(place[0], place[1], place[2], isParallel ? 0.0F : 1.0F);
    SoLightSource light;
    light.direction = toWorld.multDirection(camera->getDirection()).normalized();
    m_headlights.assign(headlight && !m_list.hasLights ? 1 : 0, light);
    return eye;
}

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
    if (shading == Shading::WithEdges)
        drawEdges();
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

void SoRenderer::Impl::drawEdges()
{
    m_shader.setLook(xsg::Shader::Look::Flat);
    m_state.setEdgesOnly(true);
    setBlending();
    const auto drawTriangles = [this](xsg::InstanceList& instances, const std::vector<xsg::Run>& runs) {
        instances.forEachPart(runs, [&](const xsg::Run& run) {
            const xsg::RenderItem& item = instances.getItem(m_list.items, run.first);
            if (item.geometry->kind == SoGeometry::Kind::Triangles)
                drawRun(instances, run);
        });
    };
    drawTriangles(m_opaque, m_visible);
    drawTriangles(m_transparent, m_transparent.getBatches());
}

void SoRenderer::Impl::drawOpaque(const xsg::RenderChanges& changes, const xsg::Frustum& frustum)
{
    m_opaque.update(m_list.opaque, m_list.items, changes, !changes.orders);
    m_opaque.findVisible(frustum, m_list.items, m_visible);
    std::uint32_t seen = 0;
    for (const xsg::Run& run : m_visible)
        seen += run.end - run.first;
    statistics.culled += m_opaque.getSize() - seen;
    drawVisible(m_opaque);
}

// What is in sight, batch by batch.
void SoRenderer::Impl::drawVisible(xsg::InstanceList& instances)
{
    auto run = m_visible.begin();
    for (const xsg::Run& batch : instances.getBatches()) {
        const xsg::GpuGeometry& geometry = *instances.getItem(m_list.items, batch.first).geometry;
        while (run != m_visible.end() && run->first < batch.end) {
            xsg::Run part{std::max(run->first, batch.first), std::min(run->end, batch.end)};
            const auto isCloseBehind = [&](const xsg::Run& next) {
                return next.first < batch.end &&
                       std::int64_t{next.first - part.end} * geometry.indexCount <= CheapCorners;
            };
            while (run->end < batch.end && std::next(run) != m_visible.end() &&
                   isCloseBehind(*std::next(run)))
                part.end = std::min((++run)->end, batch.end);
            drawRun(instances, part);
            countDrawn(geometry, part.end - part.first);
            if (run->end > batch.end)
                break; // the run continues in the next batch
            ++run;
        }
    }
}

void SoRenderer::Impl::drawTransparent(const xsg::RenderChanges& changes, const xsg::Frustum& frustum,
                                       const EyeView& eye)
{
    const auto& items = m_list.items;
    m_depths.clear();
    for (const std::uint32_t i : m_list.transparent) {
        if (items[i].geometry->isScreenSpace || frustum.mayShow(items[i].box))
            m_depths.emplace_back(eye.view.multPoint(items[i].box.getCenter())[2], i);
        else
            ++statistics.culled;
    }
    std::sort(m_depths.begin(), m_depths.end()); // the eye looks along negative z: the farthest comes first
    m_order.clear();
    for (const auto& [depth, i] : m_depths)
        m_order.push_back(i);
    m_transparent.update(m_order, items, changes);
    if (m_transparent.isEmpty())
        return;
    setBlending();
    glDepthMask(GL_FALSE);
    for (const xsg::Run& batch : m_transparent.getBatches()) {
        drawBothSides(m_transparent, batch);
        countDrawn(*m_transparent.getItem(items, batch.first).geometry, batch.end - batch.first);
    }
    m_state.setFaces(Faces::Both, false);
    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
}

// A body's far side is blended before its near side.
void SoRenderer::Impl::drawBothSides(xsg::InstanceList& instances, const xsg::Run& run)
{
    const auto& items = m_list.items;
    const bool isFlat = instances.getItem(items, run.first).geometry->kind != SoGeometry::Kind::Triangles;
    if (isFlat || run.end - run.first > FewCopies) {
        m_state.setFaces(Faces::Both, false);
        drawRun(instances, run);
        return;
    }
    for (std::uint32_t place = run.first; place < run.end; ++place) {
        const bool mirrored = isMirrored(instances.getItem(items, place).instance);
        for (const Faces faces : {Faces::Back, Faces::Front}) {
            m_state.setFaces(faces, mirrored);
            drawRun(instances, {place, place + 1});
        }
    }
}

void SoRenderer::Impl::setHighlight(const std::vector<std::uint64_t>& nodeIds)
{
    const auto set = [](Marked& marked, std::vector<std::uint64_t> ids) {
        marked.isOther |= ids != marked.nodeIds;
        marked.nodeIds.swap(ids);
    };
    const auto current = nodeIds.end() - (nodeIds.empty() ? 0 : 1);
    set(m_others, {nodeIds.begin(), current});
    set(m_current, {current, nodeIds.end()});
}

void SoRenderer::Impl::collect(Marked& marked, const xsg::RenderChanges& changes)
{
    const bool isOther = std::exchange(marked.isOther, false) || changes.all;
    if (isOther) {
        marked.items.clear();
        for (const std::uint64_t nodeId : marked.nodeIds)
            m_list.collectItemsOf(nodeId, marked.items);
        if (marked.nodeIds.size() > 1) { // one may stand below another
            std::sort(marked.items.begin(), marked.items.end());
            marked.items.erase(std::unique(marked.items.begin(), marked.items.end()), marked.items.end());
        }
    }
    if (isOther || changes.orders)
        m_opaque.findPlaces(marked.items, marked.opaque);
}

void SoRenderer::Impl::drawHighlight(const xsg::RenderChanges& changes, int width, int height)
{
    constexpr float Thinner = 2.0F / 3;
    drawOutline(m_others, changes, width, height, std::max(1.0F, Thinner * highlightThickness));
    drawOutline(m_current, changes, width, height, highlightThickness);
}

void SoRenderer::Impl::drawOutline(Marked& marked, const xsg::RenderChanges& changes, int width, int height,
                                   float thickness)
{
    collect(marked, changes);
    std::vector<xsg::Run> opaque = common(marked.opaque, m_visible);
    std::vector<xsg::Run> transparent;
    if (!marked.items.empty())
        m_transparent.findPlaces(marked.items, transparent);
    if ((opaque.empty() && transparent.empty()) || !m_outline.prepare(width, height, error))
        return;
    m_outline.beginMask();
    m_state.setEdgesOnly(false);
    m_shader.use();
    m_shader.setPlaceOnly(true);
    drawMask(m_opaque, opaque);
    drawMask(m_transparent, transparent);
    m_outline.draw(highlightColor, thickness);
    m_shader.use();
    m_shader.setPlaceOnly(false);
}

void SoRenderer::Impl::drawMask(xsg::InstanceList& instances, const std::vector<xsg::Run>& runs)
{
    instances.forEachPart(runs, [&](const xsg::Run& part) {
        drawRun(instances, part);
        countDrawn(*instances.getItem(m_list.items, part.first).geometry, part.end - part.first);
    });
}

void SoRenderer::Impl::drawCallbacks(const EyeView& eye, int width, int height)
{
    for (const xsg::CallbackItem& item : m_list.callbacks) {
        if (!item.node->getCallback())
            continue;
        item.node->getCallback()({item.modelMatrix, eye.view, eye.projection, width, height});
        statistics.stateChanges += m_state.getChanges();
        m_state.begin(width, height, m_headlights);
        m_shader.use();
    }
}

void SoRenderer::Impl::drawRun(xsg::InstanceList& instances, const xsg::Run& run)
{
    const xsg::RenderItem& first = instances.getItem(m_list.items, run.first);
    const xsg::GpuGeometry& geometry = *first.geometry;
    m_state.setState(m_list.drawStates.get(first.drawState));
    m_state.setGeometry(*first.geometry);
    const auto kind = static_cast<int>(geometry.kind);
    m_pacer.draw(geometry.indexCount, static_cast<GLsizei>(run.end - run.first), 3 - kind,
                 [&](const xsg::DrawPart& part) {
                     instances.bind(run.first + static_cast<std::uint32_t>(part.firstCopy));
                     const auto offset = static_cast<std::uintptr_t>(part.firstIndex) * sizeof(GLuint);
                     glDrawElementsInstanced(Primitives[kind], part.indexCount, GL_UNSIGNED_INT,
                                             reinterpret_cast<const void*>(offset), part.copies);
                 });
    ++statistics.drawCalls;
}

void SoRenderer::Impl::countDrawn(const xsg::GpuGeometry& geometry, std::int64_t copies)
{
    statistics.points += geometry.pointCount * copies;
    if (geometry.kind == SoGeometry::Kind::Triangles)
        statistics.triangles += geometry.indexCount / 3 * copies;
}

template <class Reader>
void SoRenderer::Impl::setImageReader(Reader reader)
{
    m_textures.setImageReader(std::move(reader));
    m_updater.invalidate();
}

void SoRenderer::Impl::releaseGL()
{
    m_updater.clear();
    m_outline.release();
    m_overlayPainter.release();
    m_shader.release();
    m_geometry.release();
    m_textures.release();
    for (xsg::InstanceList* each : {&m_opaque, &m_transparent})
        each->release();
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

void SoRenderer::setPart(const Part& part)
{
    m_impl->part = part;
}

void SoRenderer::setShading(Shading shading)
{
    m_impl->shading = shading;
}

void SoRenderer::setClipPlane(const SbPlane* plane)
{
    m_impl->clipPlane = plane ? std::optional<SbPlane>(*plane) : std::nullopt;
}

void SoRenderer::setWireframe(bool on)
{
    m_impl->wireframe = on;
}

void SoRenderer::setHiding(const SoHiding* hiding)
{
    m_impl->hiding = hiding;
}

void SoRenderer::setHighlight(const SoNode* node)
{
    setHighlightedNumbers(node ? std::vector<std::uint64_t>{node->getNodeId()}
                               : std::vector<std::uint64_t>());
}

void SoRenderer::setHighlightedNumbers(const std::vector<std::uint64_t>& nodeIds)
{
    m_impl->setHighlight(nodeIds);
}

void SoRenderer::setHighlightThickness(float pixels)
{
    m_impl->highlightThickness = pixels;
}

void SoRenderer::setHighlightColor(const SbColor& color)
{
    m_impl->highlightColor = color;
}

bool SoRenderer::wantsDebugContext()
{
    return xsg::GlMessages::areWanted();
}

SoOverlay& SoRenderer::getOverlay()
{
    return m_impl->overlay;
}

void SoRenderer::setHeadlight(bool on)
{
    m_impl->headlight = on;
}

void SoRenderer::setImageReader(SoImageReader reader)
{
    m_impl->setImageReader(std::move(reader));
}

void SoRenderer::setFittingImageReader(SoFittingImageReader reader)
{
    m_impl->setImageReader(std::move(reader));
}

const SoRenderer::Statistics& SoRenderer::getStatistics() const
{
    return m_impl->statistics;
}

SbBox3f SoRenderer::getSceneBox() const
{
    return m_impl->getList().box;
}
