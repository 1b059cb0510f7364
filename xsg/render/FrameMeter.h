// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFramePhase.h>
#include <xsg/render/GpuTimer.h>
#include <xsg/render/SoRenderer.h>

namespace xsg
{

/// Measures a renderer's pictures for a log of frames, while it is on. To ask a driver costs some of its
/// time: of pictures that take little, every eighth is asked about.
class FrameMeter
{
public:
    void setLog(SoFrameLog* log) { m_log = log; }
    /// Around all that is done for a piece of a picture, which `begins` with the first.
    void beginPiece(bool begins);
    void endPiece();
    /// The picture is finished.
    void file(const SoRenderer::Statistics& statistics);
    /// Frees what it has of OpenGL's.
    void release();

private:
    void collect();

    SoFrameLog* m_log = nullptr;
    bool m_isOn = false;    // for the present picture
    bool m_isTimed = false; // by the graphics card
    bool m_wasLong = false;
    int m_sinceTimed = 0; // pictures
    FrameClock m_clock;
    GpuTimer m_gpu;
};

} // namespace xsg
