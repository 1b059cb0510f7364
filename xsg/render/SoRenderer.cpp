// SPDX-License-Identifier: MIT
#include <xsg/render/SoRenderer.h>

#include <xsg/render/SoRendererImpl.h>

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

const SbSentence& SoRenderer::getError() const
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

void SoRenderer::setTile(const Tile& tile)
{
    m_impl->tile = tile;
}

void SoRenderer::setShading(Shading shading)
{
    m_impl->shading = shading;
}

void SoRenderer::setToneMapping(ToneMapping toneMapping)
{
    m_impl->toneMapping = toneMapping;
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

void SoRenderer::setShapeColors(const SoShapeColors* colors)
{
    m_impl->shapeColors = colors;
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

void SoRenderer::setFrameLog(SoFrameLog* log)
{
    m_impl->frameMeter.setLog(log);
}

void SoRenderer::setCountsPixels(bool on)
{
    m_impl->countsPixels = on;
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
