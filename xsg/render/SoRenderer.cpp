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
// What takes too little time to draw it in pieces.
constexpr std::int64_t FewIndices = xsg::DrawPacer::MostIndices;
// To begin drawing so many takes a piece of its own.
constexpr std::int64_t ManyNodes = 20'000;
// A scene whose children change all the time must be seen, too.
constexpr int MostRestarts = 3;
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

// One call of OpenGL.
struct DrawTask {
    xsg::Run run; // in the order of the instances; of one geometry and state
    xsg::DrawPart part;
    xsg::DrawState::Faces faces = xsg::DrawState::Faces::Both;
    bool isMirrored = false;
};

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
    using Time = std::chrono::steady_clock::time_point;

    Progress render(SoNode* root, const SoCamera* camera, int width, int height, Time until);
    void drop() { m_phase = Phase::None; }
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

    // Where a picture is that is drawn in pieces.
    enum class Phase { None, Listing, Opaque, Transparent, Edges, Marks };

    bool prepare();
    void clearPicture();
    void begin(const SoNode* root, int width, int height);
    bool canGoOn(const SoNode* root, int width, int height);
    bool drawScene(SoNode* root, const SoCamera* camera, Time until);
    void beginDrawing(const SoCamera* camera);
    bool updateList(SoNode* root, const SoCamera* camera, Time until);
    SbVec3f eyeOf(const SoCamera& camera) const;
    EyeView lookThrough(const SoCamera* camera, int width, int height);
    void updateOpaque(const xsg::Frustum& frustum);
    void updateTransparent(const xsg::Frustum& frustum);
    void planTransparent();
    void planEdges();
    // What is marked by a line of one thickness.
    struct Marked {
        std::vector<std::uint64_t> nodeIds;
        std::vector<std::uint32_t> items;
        std::vector<xsg::Run> opaque;
        bool isOther = false; // than what items are of
    };
    void collect(Marked& marked);
    bool planMark(const Marked& marked);
    void planMask(const xsg::InstanceList& instances, const std::vector<xsg::Run>& runs);
    void drawCallbacks();
    std::int64_t planVisible();
    /// Returns how many items are in sight.
    template <class Act>
    std::int64_t forEachVisible(const Act& act) const;
    void planBothSides(const xsg::InstanceList& instances, const xsg::Run& run);
    void plan(const xsg::InstanceList& instances, const xsg::Run& run, Faces faces = Faces::Both,
              bool isMirrored = false);
    void countDrawn(const xsg::GpuGeometry& geometry, std::int64_t copies);
    bool beginShading();
    void endShading();
    void setBlending();
    bool drawShaded(Time until);
    bool drawOpaque(Time until);
    bool drawTransparent(Time until);
    bool drawEdges(Time until);
    bool drawMarks(Time until);
    bool drawMark(Time until, float thickness);
    bool drawTasks(xsg::InstanceList& instances, std::size_t end, Time until);
    void draw(xsg::InstanceList& instances, const DrawTask& task);
    Uploads countUploads() const;
    void countAll();

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

    // Of the picture that is being drawn:
    Phase m_phase = Phase::None;
    std::uint64_t m_rootId = 0;
    std::uint32_t m_rootCount = 0;
    std::uint64_t m_structureCount = 0;
    int m_restarts = 0;
    int m_walks = 0;
    bool m_isListed = false;
    int m_width = 0;
    int m_height = 0;
    Uploads m_uploadsBefore{};
    xsg::RenderChanges m_changes;
    EyeView m_eye;
    std::vector<DrawTask> m_tasks; // of the present phase
    std::size_t m_nextTask = 0;
    std::size_t m_opaqueTasks = 0; // of edges and masks: those of opaque items come first
    int m_mark = 0;                // that is drawn: 0 for the others, 1 for the current node's
    bool m_isMarkPlanned = false;
    bool m_isShaded = false;         // and not in the full look
    std::int64_t m_indicesDrawn = 0; // so far
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

SoRenderer::Progress SoRenderer::Impl::render(SoNode* root, const SoCamera* camera, int width, int height,
                                              Time until)
{
    const SbElapsedTime time;
    if (m_phase != Phase::None && !canGoOn(root, width, height))
        drop();
    const bool begins = m_phase == Phase::None;
    if (begins)
        begin(root, width, height);
    if (width <= 0 || height <= 0) {
        drop();
        return Progress::Finished;
    }
    if (!prepare()) {
        drop();
        return Progress::Failed;
    }
    m_shader.setViewPlane(clipPlane ? &*clipPlane : nullptr);
    m_state.begin(width, height, m_headlights);
    m_pacer.begin();
    if (begins)
        clearPicture();
    const bool isFinished = !root || drawScene(root, camera, m_restarts < MostRestarts ? until : Time::max());
    m_state.end();
    m_messages.collect("SoRenderer");
    statistics.seconds += time.getElapsed();
    if (!isFinished)
        return Progress::Unfinished;
    m_pacer.end();
    drop();
    m_restarts = 0;
    feedCounters(statistics);
    return Progress::Finished;
}

void SoRenderer::Impl::begin(const SoNode* root, int width, int height)
{
    statistics = {};
    error.clear();
    m_phase = Phase::Listing;
    m_rootId = root ? root->getNodeId() : 0;
    m_width = width;
    m_height = height;
    m_walks = 0;
    m_isListed = false;
    m_indicesDrawn = 0;
    m_uploadsBefore = countUploads();
}

// What is drawn names nodes, which may be gone when children anywhere have changed. A list that is not
// complete yet takes care of that itself.
bool SoRenderer::Impl::canGoOn(const SoNode* root, int width, int height)
{
    const std::uint64_t rootId = root ? root->getNodeId() : 0;
    if (rootId != m_rootId || width != m_width || height != m_height) {
        m_restarts = 0;
        return false;
    }
    if (m_phase == Phase::Listing || !root)
        return true;
    const std::uint64_t structureCount = SoGroup::getStructureCount();
    const bool isAsItWas = root->getChangeCount() == m_rootCount || structureCount == m_structureCount;
    if (root->getChangeCount() == m_rootCount)
        m_structureCount = structureCount; // others' children are of no concern
    if (!isAsItWas)
        ++m_restarts;
    return isAsItWas;
}

// False where the time is up.
bool SoRenderer::Impl::drawScene(SoNode* root, const SoCamera* camera, Time until)
{
    if (m_phase == Phase::Listing) {
        if (!updateList(root, camera, until))
            return false;
        if (!std::exchange(m_isListed, true) && statistics.nodes > ManyNodes &&
            std::chrono::steady_clock::now() >= until)
            return false;
        m_rootCount = root->getChangeCount();
        m_structureCount = SoGroup::getStructureCount();
        beginDrawing(camera);
    }
    m_shader.use();
    m_shader.setView(m_eye.viewProjection, m_eye.eye, m_width, m_height);
    m_state.setEdgesOnly(wireframe);
    const bool isFinished = drawShaded(until) && drawMarks(until);
    if (isFinished && !overlay.isEmpty())
        m_overlayPainter.draw(overlay, m_eye.viewProjection, m_width, m_height, error);
    statistics.stateChanges += m_state.getChanges();
    countAll();
    return isFinished;
}

void SoRenderer::Impl::beginDrawing(const SoCamera* camera)
{
    m_changes = m_updater.takeChanges();
    m_eye = lookThrough(camera, m_width, m_height);
    const xsg::Frustum frustum(m_eye.viewProjection);
    updateOpaque(frustum);
    updateTransparent(frustum);
    collect(m_others);
    collect(m_current);
    m_mark = 0;
    m_isMarkPlanned = false;
    m_tasks.clear();
    m_nextTask = 0;
    const std::int64_t seen = planVisible();
    statistics.culled += m_opaque.getSize() - seen;
    m_phase = Phase::Opaque;
}

bool SoRenderer::Impl::drawShaded(Time until)
{
    if (m_phase == Phase::Marks)
        return true;
    m_isShaded = beginShading();
    const bool isFinished = drawOpaque(until) && drawTransparent(until) && drawEdges(until);
    if (m_isShaded)
        endShading();
    return isFinished;
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

bool SoRenderer::Impl::drawOpaque(Time until)
{
    if (m_phase != Phase::Opaque)
        return true;
    if (!drawTasks(m_opaque, m_tasks.size(), until))
        return false;
    if (shading != Shading::Overdraw)
        drawCallbacks();
    m_tasks.clear();
    m_nextTask = 0;
    planTransparent();
    m_phase = Phase::Transparent;
    return true;
}

bool SoRenderer::Impl::drawTransparent(Time until)
{
    if (m_phase != Phase::Transparent)
        return true;
    bool isFinished = true;
    if (!m_tasks.empty()) {
        setBlending();
        glDepthMask(GL_FALSE);
        isFinished = drawTasks(m_transparent, m_tasks.size(), until);
        m_state.setFaces(Faces::Both, false);
        glDepthMask(GL_TRUE);
        glDisable(GL_BLEND);
    }
    if (isFinished) {
        planEdges();
        m_phase = Phase::Edges;
    }
    return isFinished;
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

bool SoRenderer::Impl::drawMarks(Time until)
{
    constexpr float Thinner = 2.0F / 3;
    for (; m_mark < 2; ++m_mark) {
        const bool isCurrent = m_mark == 1;
        const float thickness = isCurrent ? highlightThickness : std::max(1.0F, Thinner * highlightThickness);
        const bool isToBegin = !m_isMarkPlanned && planMark(isCurrent ? m_current : m_others);
        if (isToBegin) {
            m_outline.beginMask();
            m_outline.endMask();
            m_isMarkPlanned = true;
        }
        if (m_isMarkPlanned && !drawMark(until, thickness))
            return false;
        m_isMarkPlanned = false;
    }
    return true;
}

bool SoRenderer::Impl::drawMark(Time until, float thickness)
{
    m_outline.goOnWithMask();
    m_state.setEdgesOnly(false);
    m_shader.use();
    m_shader.setPlaceOnly(true);
    const bool isFinished =
        drawTasks(m_opaque, m_opaqueTasks, until) && drawTasks(m_transparent, m_tasks.size(), until);
    if (isFinished)
        m_outline.draw(highlightColor, thickness);
    else
        m_outline.endMask();
    m_shader.use();
    m_shader.setPlaceOnly(false);
    return isFinished;
}

bool SoRenderer::Impl::drawTasks(xsg::InstanceList& instances, std::size_t end, Time until)
{
    constexpr std::size_t CallsBetweenLooks = 64; // at the clock
    std::int64_t indices = 0;
    while (m_nextTask < end) {
        const DrawTask& task = m_tasks[m_nextTask++];
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

void SoRenderer::Impl::draw(xsg::InstanceList& instances, const DrawTask& task)
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

void SoRenderer::Impl::countAll()
{
    statistics.shapes =
        static_cast<std::int64_t>(m_opaque.getSize() + m_list.transparent.size() + m_list.copies.size());
    const Uploads after = countUploads();
    statistics.bufferUploads = after.buffers - m_uploadsBefore.buffers;
    statistics.uploadedBytes = after.bytes - m_uploadsBefore.bytes;
    statistics.textureBytes = after.textureBytes - m_uploadsBefore.textureBytes;
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

// False where the time is up.
bool SoRenderer::Impl::updateList(SoNode* root, const SoCamera* camera, Time until)
{
    m_updater.setHiding(hiding);
    // Where the eye stands is known once the scene has been walked, and matters only to what chooses by
    // distance: a second walk then uses the right place. The camera of the last walk may be destroyed by now.
    using Update = xsg::RenderListUpdater::Update;
    for (; m_walks < 2; ++m_walks) {
        const SbVec3f eye = camera ? eyeOf(*camera) : m_sceneEye;
        const Update update = m_updater.update(root, {camera, eye}, until);
        if (update == Update::Unfinished)
            return false;
        if (update == Update::Same) {
            if (m_walks == 0)
                m_updater.fitMemory();
            return true;
        }
        m_sceneEye = m_list.camera ? eyeOf(*m_list.camera) : SbVec3f();
        statistics.nodes += m_updater.getNumVisited();
    }
    return true;
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
    m_headlights.assign(headlight && m_list.lights == 0 ? 1 : 0, light);
    return eye;
}

void SoRenderer::Impl::updateOpaque(const xsg::Frustum& frustum)
{
    m_opaque.follow(m_list.opaque, m_list.items, m_changes,
                    [](const xsg::RenderItem& item) { return item.isDrawn() && !item.isTransparent; });
    m_opaque.findVisible(frustum, m_list.items, m_visible);
}

// What is in sight, batch by batch. Returns how much that is.
std::int64_t SoRenderer::Impl::planVisible()
{
    return forEachVisible([&](const xsg::Run& part, const xsg::GpuGeometry& geometry) {
        plan(m_opaque, part);
        countDrawn(geometry, part.end - part.first);
    });
}

template <class Act>
std::int64_t SoRenderer::Impl::forEachVisible(const Act& act) const
{
    std::int64_t seen = 0;
    auto run = m_visible.begin();
    for (const xsg::Run& batch : m_opaque.getBatches()) {
        const xsg::GpuGeometry& geometry = *m_opaque.getItem(m_list.items, batch.first).geometry;
        while (run != m_visible.end() && run->first < batch.end) {
            xsg::Run part{std::max(run->first, batch.first), std::min(run->end, batch.end)};
            const auto isCloseBehind = [&](const xsg::Run& next) {
                return next.first < batch.end &&
                       std::int64_t{next.first - part.end} * geometry.indexCount <= CheapCorners;
            };
            seen += part.end - part.first;
            while (run->end < batch.end && std::next(run) != m_visible.end() &&
                   isCloseBehind(*std::next(run))) {
                ++run;
                seen += std::min(run->end, batch.end) - run->first;
                part.end = std::min(run->end, batch.end);
            }
            act(part, geometry);
            if (run->end > batch.end)
                break; // the run continues in the next batch
            ++run;
        }
    }
    return seen;
}

void SoRenderer::Impl::updateTransparent(const xsg::Frustum& frustum)
{
    const auto& items = m_list.items;
    m_depths.clear();
    for (const std::uint32_t i : m_list.transparent) {
        if (items[i].geometry->isScreenSpace || frustum.mayShow(items[i].box))
            m_depths.emplace_back(m_eye.view.multPoint(items[i].box.getCenter())[2], i);
        else
            ++statistics.culled;
    }
    // The eye looks along negative z: the farthest comes first.
    std::sort(m_depths.begin(), m_depths.end(), [&](const auto& a, const auto& b) {
        return a.first != b.first ? a.first < b.first : items[a.second].rank < items[b.second].rank;
    });
    m_order.clear();
    for (const auto& [depth, i] : m_depths)
        m_order.push_back(i);
    m_transparent.update(m_order, items, m_changes);
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

void SoRenderer::Impl::setHighlight(const std::vector<std::uint64_t>& nodeIds)
{
    const auto set = [](Marked& marked, std::vector<std::uint64_t> ids) {
        const bool isOther = ids != marked.nodeIds;
        marked.isOther |= isOther;
        marked.nodeIds.swap(ids);
        return isOther;
    };
    const auto current = nodeIds.end() - (nodeIds.empty() ? 0 : 1);
    const bool areOthers = set(m_others, {nodeIds.begin(), current});
    if (set(m_current, {current, nodeIds.end()}) || areOthers)
        m_updater.watch(nodeIds);
}

void SoRenderer::Impl::collect(Marked& marked)
{
    const bool isOther = std::exchange(marked.isOther, false) || m_changes.all || m_changes.structure;
    if (isOther) {
        marked.items.clear();
        for (const std::uint64_t nodeId : marked.nodeIds)
            m_list.collectItemsOf(nodeId, marked.items);
        if (marked.nodeIds.size() > 1) { // one may stand below another
            std::sort(marked.items.begin(), marked.items.end());
            marked.items.erase(std::unique(marked.items.begin(), marked.items.end()), marked.items.end());
        }
    }
    if (isOther || m_changes.orders)
        m_opaque.findPlaces(marked.items, marked.opaque);
}

// False where nothing is to be marked.
bool SoRenderer::Impl::planMark(const Marked& marked)
{
    m_tasks.clear();
    m_nextTask = 0;
    const std::vector<xsg::Run> opaque = common(marked.opaque, m_visible);
    std::vector<xsg::Run> transparent;
    if (!marked.items.empty())
        m_transparent.findPlaces(marked.items, transparent);
    if ((opaque.empty() && transparent.empty()) || !m_outline.prepare(m_width, m_height, error))
        return false;
    planMask(m_opaque, opaque);
    m_opaqueTasks = m_tasks.size();
    planMask(m_transparent, transparent);
    return true;
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

void SoRenderer::Impl::planMask(const xsg::InstanceList& instances, const std::vector<xsg::Run>& runs)
{
    instances.forEachPart(runs, [&](const xsg::Run& part) {
        plan(instances, part);
        countDrawn(*instances.getItem(m_list.items, part.first).geometry, part.end - part.first);
    });
}

void SoRenderer::Impl::drawCallbacks()
{
    for (const xsg::CallbackItem& item : m_list.callbacks) {
        if (!item.node->getCallback())
            continue;
        item.node->getCallback()({item.modelMatrix, m_eye.view, m_eye.projection, m_width, m_height});
        statistics.stateChanges += m_state.getChanges();
        m_state.begin(m_width, m_height, m_headlights);
        m_shader.use();
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

template <class Reader>
void SoRenderer::Impl::setImageReader(Reader reader)
{
    m_textures.setImageReader(std::move(reader));
    m_updater.invalidate();
}

void SoRenderer::Impl::releaseGL()
{
    drop();
    m_pacer.end();
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
    m_impl->drop();
    return m_impl->render(root, camera, width, height, Impl::Time::max()) == Progress::Finished;
}

SoRenderer::Progress SoRenderer::renderPart(SoNode* root, const SoCamera* camera, int width, int height,
                                            std::chrono::steady_clock::time_point until)
{
    return m_impl->render(root, camera, width, height, until);
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
