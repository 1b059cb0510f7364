// SPDX-License-Identifier: MIT
// The phases of a picture, which may be drawn in pieces.
#include <xsg/render/SoRendererImpl.h>

#include <xsg/counters/LibraryCounters.h>
#include <xsg/nodes/shapes/SoDrawingCallback.h>
#include <xsg/values/SbTime.h>

#include <utility>

namespace
{

// To begin drawing so many takes a piece of its own.
constexpr std::int64_t ManyNodes = 20'000;
// A scene whose children change all the time must be seen, too.
constexpr int MostRestarts = 3;

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

} // namespace

bool SoRenderer::Impl::prepare()
{
    if (epoxy_gl_version() < 33) {
        error = SbSentence("Drawing needs OpenGL 3.3, but this system offers only %1.%2.",
                           epoxy_gl_version() / 10, epoxy_gl_version() % 10);
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
    frameMeter.beginPiece(begins);
    m_shader.setViewPlane(clipPlane ? &*clipPlane : nullptr);
    m_shader.setToneMapping(toneMapping);
    m_state.begin(width, height, m_headlights);
    m_pacer.begin();
    if (begins)
        clearPicture();
    const bool isFinished = !root || drawScene(root, camera, m_restarts < MostRestarts ? until : Time::max());
    m_state.end();
    if (error.empty())
        error = m_shader.takeError();
    m_messages.collect("SoRenderer");
    frameMeter.endPiece();
    statistics.seconds += time.getElapsed();
    if (!isFinished)
        return Progress::Unfinished;
    m_pacer.end();
    drop();
    m_restarts = 0;
    feedCounters(statistics);
    frameMeter.file(statistics);
    return Progress::Finished;
}

void SoRenderer::Impl::begin(const SoNode* root, int width, int height)
{
    statistics = {};
    error = {};
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
    const bool isFinished = drawCounted(until) && drawMarks(until);
    if (isFinished && !overlay.isEmpty())
        m_overlayPainter.draw(overlay, m_eye.viewProjection, m_width, m_height, error);
    statistics.stateChanges += m_state.getChanges();
    countAll();
    return isFinished;
}

void SoRenderer::Impl::beginDrawing(const SoCamera* camera)
{
    const SoFramePhase phase(SoFrame::Cull);
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

bool SoRenderer::Impl::drawCounted(Time until)
{
    if (!countsPixels)
        return drawShaded(until);
    m_pixels.begin();
    const bool isFinished = drawShaded(until);
    statistics.pixels = std::max<std::int64_t>(statistics.pixels, 0) + m_pixels.end();
    return isFinished;
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

// False where the time is up.
bool SoRenderer::Impl::updateList(SoNode* root, const SoCamera* camera, Time until)
{
    const SoFramePhase phase(SoFrame::Traverse);
    m_updater.setHiding(hiding);
    m_updater.setColors(shapeColors);
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

void SoRenderer::Impl::updateOpaque(const xsg::Frustum& frustum)
{
    m_opaque.follow(m_list.opaque, m_list.items, m_changes,
                    [](const xsg::RenderItem& item) { return item.isDrawn() && !item.isTransparent; });
    m_opaque.findVisible(frustum, m_list.items, m_visible);
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

void SoRenderer::Impl::releaseGL()
{
    drop();
    m_pacer.end();
    frameMeter.release();
    m_updater.clear();
    m_pixels.release();
    m_outline.release();
    m_overlayPainter.release();
    m_shader.release();
    m_geometry.release();
    m_textures.release();
    for (xsg::InstanceList* each : {&m_opaque, &m_transparent})
        each->release();
}
