// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/render/SoImageReader.h>
#include <xsg/render/SoOverlay.h>
#include <xsg/values/SbBox.h>
#include <xsg/values/SbMatrix.h>
#include <xsg/values/SbPlane.h>
#include <xsg/values/SbSentence.h>
#include <xsg/values/XsgExport.h>

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class SoCamera;
class SoFrameLog;
class SoHiding;
class SoNode;
class SoShapeColors;

/// Draws a scene with OpenGL 3.3 into the framebuffer of the context that is current:
///
///     void paintGL() { m_renderer.render(m_root, m_camera, width, height); }
///
/// Geometry and textures stay in OpenGL's memory and are made again only when their fields change. One
/// renderer belongs to one context (or to several that share objects): render() and releaseGL() need it
/// current, on the scene's thread. Several renderers, each with its context, may show the same scene.
class XSG_API SoRenderer
{
public:
    SoRenderer();
    /// Touches no OpenGL: objects that releaseGL() has not freed are destroyed with their context.
    ~SoRenderer();
    SoRenderer(const SoRenderer&) = delete;
    SoRenderer& operator=(const SoRenderer&) = delete;

    /// Clears and draws. `camera` may stand in the scene or outside of it; null takes the first one in the
    /// scene or, where there is none, a view of everything. A null root gives the empty background. Size in
    /// pixels. False where OpenGL cannot draw it; getError() then says why in one sentence.
    bool render(SoNode* root, const SoCamera* camera, int width, int height);
    const SbSentence& getError() const;
    const std::string& getErrorText() const { return getError().getText(); }
    /// Where in a larger picture the pixels of the next render() lie, so that a picture can be drawn in
    /// parts.
    struct Tile {
        int wholeWidth = 0; // 0: what is drawn is the whole picture
        int wholeHeight = 0;
        int left = 0;
        int bottom = 0;
    };
    void setTile(const Tile& tile);

    enum class Progress { Finished, Unfinished, Failed };
    /// render() in pieces, for a program that answers its user meanwhile: returns when the picture is
    /// finished or, of a large scene, when the time is up. The next call goes on in the same framebuffer,
    /// which has to keep what is in it. The picture shows what the camera saw when drawing began. Another
    /// root or size, or other children in the scene, begin it again, and so does render().
    Progress renderPart(SoNode* root, const SoCamera* camera, int width, int height,
                        std::chrono::steady_clock::time_point until);

    /// Frees all OpenGL objects; the next render() makes them again. Call it before the context is destroyed.
    void releaseGL();

    void setBackground(const SbColor& color, float opacity = 1);
    /// Draws the edges of everything instead of surfaces.
    void setWireframe(bool on);
    /// What of the scene is shown: its look, its look with the edges of all triangles on top, where surfaces
    /// face, how textures lie on them, or how often each pixel is drawn (brighter for each time, without
    /// hiding anything).
    enum class Shading { Full, WithEdges, Normals, TextureCoordinates, Overdraw };
    void setShading(Shading shading);
    /// How light that is brighter than white, or nearly so, is brought into the picture: cut off, compressed
    /// where it is bright with hues kept, or over the whole range as film does. Only physically based
    /// surfaces are that bright; SoMaterial is shown as it is.
    enum class ToneMapping { None, Neutral, Filmic };
    void setToneMapping(ToneMapping toneMapping); // Neutral at first
    /// Cuts the scene by this plane too, in world coordinates: what lies on its normal's side stays. Null for
    /// none.
    void setClipPlane(const SbPlane* plane);
    /// What of the scene is left out of the picture; it is asked at each render() and must outlive them.
    /// Null, as at first: nothing.
    void setHiding(const SoHiding* hiding);
    /// Draws shapes in these colours instead of their own looks, unless it is empty; it is asked at each
    /// render() and must outlive them. Null, as at first: none.
    void setShapeColors(const SoShapeColors* colors);
    /// Marks this node and what is below it with a line around it; null for none. Where something else covers
    /// it, the line is weaker. The node may be destroyed at any time.
    void setHighlight(const SoNode* node);
    /// Several, by SoNode::getNodeId(). The line around the last one is as thick as is set, around the others
    /// two thirds of that.
    void setHighlightedNumbers(const std::vector<std::uint64_t>& nodeIds);
    void setHighlightColor(const SbColor& color);
    /// How thick that line is, in pixels: 2 at first, 10 at most. A rim half as thick sets it off from what
    /// is around it.
    void setHighlightThickness(float pixels);
    /// Drawn over the scene with every picture; empty at first. Changed between pictures, where there is a
    /// root.
    SoOverlay& getOverlay();
    /// Whether contexts for drawing should be debug contexts, in which OpenGL reports its errors by itself,
    /// as SoGLError with what was wrong: the preference XSG_GL_DEBUG, on in debug builds unless it says
    /// otherwise.
    static bool wantsDebugContext();

    /// Files what each picture costs, while the log is on; it must outlive the pictures. Null, as at first:
    /// nowhere.
    void setFrameLog(SoFrameLog* log);
    /// Counts pixels too, for which each render() waits for the graphics card; off at first.
    void setCountsPixels(bool on);

    /// A light beside the eye in scenes without a light of their own; on from the start.
    void setHeadlight(bool on);

    /// How this renderer reads the image files of textures, from the next render() on. Null, as at first: by
    /// the library's own reader, which knows portable pixmaps (PGM, PPM). Other renderers are not affected.
    void setImageReader(SoImageReader reader);
    /// The same for a reader that makes pictures as small as they have to be, without decoding them whole
    /// first. All pictures of a scene together take no more memory than the preference XSG_PICTURE_MEMORY
    /// says in MiB, 512 without it: what does not fit is brought down or left out, and an SoError says so.
    void setFittingImageReader(SoFittingImageReader reader);

    /// What the last render() saw and did.
    struct Statistics {
        std::int64_t nodes = 0;  // visited; 0 where nothing had changed
        std::int64_t shapes = 0; // in the scene
        std::int64_t culled = 0; // of them out of sight
        std::int64_t drawCalls = 0;
        std::int64_t triangles = 0; // drawn
        std::int64_t points = 0;    // of the geometry drawn
        std::int64_t stateChanges = 0;
        std::int64_t bufferUploads = 0;
        std::int64_t uploadedBytes = 0;
        std::int64_t textureBytes = 0; // uploaded
        double seconds = 0;            // spent by the processor
        /// Drawn, each as often as it passed the test of depths; in a picture of several samples, these.
        std::int64_t pixels = -1; // -1: not counted
    };
    const Statistics& getStatistics() const;
    /// Around everything in the scene, as of the last render().
    SbBox3f getSceneBox() const;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};
