// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/actions/SoHiding.h>
#include <xsg/frames/SoFrameLog.h>
#include <xsg/nodes/cameras/SoCamera.h>
#include <xsg/render/SoOffscreenRenderer.h>

/// Draws pictures of a scene, perhaps of parts of it, and tells what each of them took. They are drawn in
/// runs: the first of a run fills caches, the last waits for the graphics card's answers, and those between
/// them are told. On the scene's thread.
class XSG_API SoCostPictures
{
public:
    /// As for SoRenderer::render(). What `hiding` leaves out is never drawn. It is copied.
    SoCostPictures(SoNode* root, const SoCamera* camera, int width, int height,
                   const SoFittingImageReader& reader, const SoHiding& hiding = {});

    /// From the next picture on, another run: of all.
    void showAll();
    /// The same of all but this node, or of nothing but these, which are seen from the start.
    void hide(const SoNode* node);
    void isolate(const std::vector<const SoNode*>& nodes);

    /// False where nothing can be drawn: getError() then says why.
    bool draw(bool countsPixels = false);
    const SbSentence& getError() const { return m_renderer.getError(); }
    const std::string& getErrorText() const { return getError().getText(); }
    /// Of this run.
    int getNumDrawn() const { return static_cast<int>(m_numbers.size()); }
    std::vector<SoFrame> getFrames() const;
    /// Of the last picture.
    const SoPixels& getPixels() const { return m_pixels; }
    std::int64_t getNumPixels() { return m_renderer.getRenderer().getStatistics().pixels; }

private:
    SoRef<SoNode> m_root;
    SoRef<SoCamera> m_camera;
    int m_width;
    int m_height;
    SoHiding m_hiddenAlways;
    SoHiding m_hiding; // of the run
    SoFrameLog m_log;
    SoOffscreenRenderer m_renderer;
    SoPixels m_pixels;
    std::vector<std::uint64_t> m_numbers; // of the run's frames in the log
};
