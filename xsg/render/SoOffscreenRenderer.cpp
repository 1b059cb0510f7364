// SPDX-License-Identifier: MIT
#include <xsg/render/SoOffscreenRenderer.h>

#include <xsg/render/GlFunctions.h>
#include <xsg/render/GlThread.h>

#include <algorithm>
#include <array>

namespace
{

struct RenderbufferTraits {
    static GLuint create()
    {
        GLuint name = 0;
        glGenRenderbuffers(1, &name);
        return name;
    }
    static void destroy(GLuint name) { glDeleteRenderbuffers(1, &name); }
};

// A framebuffer with colour and depth.
class Canvas
{
public:
    bool prepare(int width, int height, int samples)
    {
        const std::array<int, 3> wanted{width, height, samples};
        if (wanted == m_made)
            return true;
        m_made = {};
        // Errors that an application's drawing callback has left behind are not this function's.
        for (int i = 0; i < 16 && glGetError() != GL_NO_ERROR; ++i) {
        }
        glBindFramebuffer(GL_FRAMEBUFFER, m_framebuffer.get());
        attach(m_color.get(), GL_COLOR_ATTACHMENT0, GL_RGBA8, width, height, samples);
        attach(m_depth.get(), GL_DEPTH_ATTACHMENT, GL_DEPTH_COMPONENT24, width, height, samples);
        if (glCheckFramebufferStatus(GL_FRAMEBUFFER) != GL_FRAMEBUFFER_COMPLETE ||
            glGetError() != GL_NO_ERROR)
            return false;
        m_made = wanted;
        return true;
    }
    void bind(GLenum target) { glBindFramebuffer(target, m_framebuffer.get()); }
    void release()
    {
        m_made = {};
        m_framebuffer.release();
        m_color.release();
        m_depth.release();
    }

private:
    static void attach(GLuint buffer, GLenum place, GLenum format, int width, int height, int samples)
    {
        glBindRenderbuffer(GL_RENDERBUFFER, buffer);
        glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, format, width, height);
        glFramebufferRenderbuffer(GL_FRAMEBUFFER, place, GL_RENDERBUFFER, buffer);
    }

    std::array<int, 3> m_made{}; // width, height and samples
    xsg::GlFramebuffer m_framebuffer;
    xsg::GlObject<RenderbufferTraits> m_color;
    xsg::GlObject<RenderbufferTraits> m_depth;
};

} // namespace

class SoOffscreenRenderer::Impl
{
public:
    using Progress = SoRenderer::Progress;

    ~Impl()
    {
        thread.run([this] {
            renderer.releaseGL();
            m_drawn.release();
            m_smooth.release();
        });
    }

    // `drawScene` draws all of it, or a part of what is missing.
    template <class Draw>
    Progress draw(int width, int height, SoPixels& pixels, const Draw& drawScene)
    {
        GLint largest = 0;
        GLint mostSamples = 0;
        glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &largest);
        glGetIntegerv(GL_MAX_SAMPLES, &mostSamples);
        const int used = std::clamp(samples, 1, std::max(mostSamples, 1));
        if (width <= 0 || height <= 0 || width > largest || height > largest ||
            !m_smooth.prepare(width, height, 0) || !m_drawn.prepare(width, height, used > 1 ? used : 0)) {
            error = SbSentence("A picture of %1 x %2 pixels cannot be drawn; each side may have 1 to %3.",
                               width, height, largest);
            return Progress::Failed;
        }
        m_drawn.bind(GL_FRAMEBUFFER);
        const Progress progress = drawScene();
        if (progress == Progress::Failed)
            error = renderer.getError();
        if (progress != Progress::Finished)
            return progress;
        m_drawn.bind(GL_READ_FRAMEBUFFER);
        m_smooth.bind(GL_DRAW_FRAMEBUFFER);
        glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
        m_smooth.bind(GL_FRAMEBUFFER);
        read(width, height, pixels);
        return Progress::Finished;
    }

    int samples = 4;
    SbSentence error;
    SoRenderer renderer;
    xsg::GlThread thread;

private:
    static void read(int width, int height, SoPixels& pixels)
    {
        pixels.width = width;
        pixels.height = height;
        const auto row = static_cast<std::size_t>(width) * 4;
        pixels.rgba.resize(row * static_cast<std::size_t>(height));
        glPixelStorei(GL_PACK_ALIGNMENT, 4);
        glReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.rgba.data());
        // OpenGL's rows are ordered from the bottom up.
        for (std::size_t top = 0, low = static_cast<std::size_t>(height) - 1; top < low; ++top, --low)
            std::swap_ranges(pixels.rgba.data() + top * row, pixels.rgba.data() + (top + 1) * row,
                             pixels.rgba.data() + low * row);
    }

    Canvas m_drawn;
    Canvas m_smooth;
};

SoOffscreenRenderer::SoOffscreenRenderer()
    : m_impl(std::make_unique<Impl>())
{
}

SoOffscreenRenderer::~SoOffscreenRenderer() = default;

SoRenderer& SoOffscreenRenderer::getRenderer()
{
    return m_impl->renderer;
}

void SoOffscreenRenderer::setSamples(int samples)
{
    m_impl->samples = samples;
}

bool SoOffscreenRenderer::render(SoNode* root, const SoCamera* camera, int width, int height,
                                 SoPixels& pixels)
{
    using Progress = SoRenderer::Progress;
    const auto drawAll = [&] {
        return m_impl->renderer.render(root, camera, width, height) ? Progress::Finished : Progress::Failed;
    };
    m_impl->error = m_impl->thread.getError();
    Progress progress = Progress::Failed;
    m_impl->thread.run([&] { progress = m_impl->draw(width, height, pixels, drawAll); });
    return progress == Progress::Finished;
}

SoRenderer::Progress SoOffscreenRenderer::renderPart(SoNode* root, const SoCamera* camera, int width,
                                                     int height, std::chrono::steady_clock::time_point until,
                                                     SoPixels& pixels)
{
    const auto drawPart = [&] { return m_impl->renderer.renderPart(root, camera, width, height, until); };
    m_impl->error = m_impl->thread.getError();
    auto progress = SoRenderer::Progress::Failed;
    m_impl->thread.run([&] { progress = m_impl->draw(width, height, pixels, drawPart); });
    return progress;
}

bool SoOffscreenRenderer::renderTile(SoNode* root, const SoCamera* camera, const SoRenderer::Tile& tile,
                                     int width, int height, SoPixels& pixels)
{
    m_impl->renderer.setTile(tile);
    const bool drawn = render(root, camera, width, height, pixels);
    m_impl->renderer.setTile({});
    return drawn;
}

const SbSentence& SoOffscreenRenderer::getError() const
{
    return m_impl->error;
}
