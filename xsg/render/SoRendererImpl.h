// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/cameras/SoPerspectiveCamera.h>
#include <xsg/render/DrawPacer.h>
#include <xsg/render/DrawState.h>
#include <xsg/render/EyeView.h>
#include <xsg/render/FrameMeter.h>
#include <xsg/render/GlMessages.h>
#include <xsg/render/InstanceList.h>
#include <xsg/render/Outline.h>
#include <xsg/render/OverlayPainter.h>
#include <xsg/render/PixelCounter.h>
#include <xsg/render/RenderListUpdater.h>
#include <xsg/render/SoRenderer.h>

#include <algorithm>
#include <optional>

namespace xsg
{

// Drawing this many corners that are out of sight costs less than another call.
constexpr std::int64_t CheapCorners = 256;

/// One call of OpenGL.
struct DrawTask {
    Run run; // in the order of the instances; of one geometry and state
    DrawPart part;
    DrawState::Faces faces = DrawState::Faces::Both;
    bool isMirrored = false;
};

} // namespace xsg

/// A renderer at work. Its parts are in files of their own: the phases of a picture, what is planned and
/// drawn, the shadings, and the marks around what is selected.
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
    ToneMapping toneMapping = ToneMapping::Neutral;
    std::optional<SbPlane> clipPlane;
    Tile tile;
    void setHighlight(const std::vector<std::uint64_t>& nodeIds);
    SbColor highlightColor{1, 0.6F, 0.1F};
    float highlightThickness = 2;
    bool headlight = true;
    SoOverlay overlay;
    const SoHiding* hiding = nullptr;
    const SoShapeColors* shapeColors = nullptr;
    bool countsPixels = false;
    xsg::FrameMeter frameMeter;
    SbSentence error;
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
    xsg::EyeView lookThrough(const SoCamera* camera, int width, int height);
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
    bool drawCounted(Time until);
    bool drawShaded(Time until);
    bool drawOpaque(Time until);
    bool drawTransparent(Time until);
    bool drawEdges(Time until);
    bool drawMarks(Time until);
    bool drawMark(Time until, float thickness);
    bool drawTasks(xsg::InstanceList& instances, std::size_t end, Time until);
    void draw(xsg::InstanceList& instances, const xsg::DrawTask& task);
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
    xsg::PixelCounter m_pixels;
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
    xsg::EyeView m_eye;
    std::vector<xsg::DrawTask> m_tasks; // of the present phase
    std::size_t m_nextTask = 0;
    std::size_t m_opaqueTasks = 0; // of edges and masks: those of opaque items come first
    int m_mark = 0;                // that is drawn: 0 for the others, 1 for the current node's
    bool m_isMarkPlanned = false;
    bool m_isShaded = false;         // and not in the full look
    std::int64_t m_indicesDrawn = 0; // so far
};

template <class Reader>
void SoRenderer::Impl::setImageReader(Reader reader)
{
    m_textures.setImageReader(std::move(reader));
    m_updater.invalidate();
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
                       std::int64_t{next.first - part.end} * geometry.indexCount <= xsg::CheapCorners;
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
