// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/SoRenderer.h>

#include <vector>

struct SoPixels {
    int width = 0;
    int height = 0;
    std::vector<unsigned char> rgba; // four bytes a pixel, rows from the top down
    const unsigned char* at(int x, int y) const
    {
        return rgba.data() + 4 * (static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                                  static_cast<std::size_t>(x));
    }
};

/// Draws pictures of scenes into memory, with an OpenGL context of its own: no window, no display and no X
/// server needed. For screenshots and tests. Whatever context the caller has current stays as it is. The
/// scene must not change while render() runs.
class XSG_API SoOffscreenRenderer
{
public:
    SoOffscreenRenderer();
    ~SoOffscreenRenderer();
    SoOffscreenRenderer(const SoOffscreenRenderer&) = delete;
    SoOffscreenRenderer& operator=(const SoOffscreenRenderer&) = delete;

    /// For background, highlight, image reader, statistics and so on; do not call its render().
    SoRenderer& getRenderer();
    /// How many samples smooth the edges: 1 for none, 4 at first; fewer where the system has no more.
    void setSamples(int samples);

    /// A camera as for SoRenderer::render(). False where there is no picture; getError() says why in one
    /// sentence.
    bool render(SoNode* root, const SoCamera* camera, int width, int height, SoPixels& pixels);
    /// The same for a part of a larger picture, which may be larger than OpenGL could draw.
    bool renderTile(SoNode* root, const SoCamera* camera, const SoRenderer::Tile& tile, int width, int height,
                    SoPixels& pixels);
    /// As SoRenderer::renderPart(); the picture is there when it is finished.
    SoRenderer::Progress renderPart(SoNode* root, const SoCamera* camera, int width, int height,
                                    std::chrono::steady_clock::time_point until, SoPixels& pixels);
    const SbSentence& getError() const;
    const std::string& getErrorText() const { return getError().getText(); }

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
