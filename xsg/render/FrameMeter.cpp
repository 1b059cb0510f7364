// SPDX-License-Identifier: MIT
#include <xsg/render/FrameMeter.h>

#include <xsg/frames/SoFrameLog.h>

namespace
{

constexpr std::int64_t LongFrame = 2'000'000; // beside which the queries are nothing
constexpr int TimedOfShort = 8;

} // namespace

void xsg::FrameMeter::beginPiece(bool begins)
{
    if (begins) {
        if (m_isOn && m_isTimed)
            m_gpu.endFrame(0); // of a picture that was given up
        m_isOn = m_log && m_log->isOn();
        m_isTimed = m_isOn && (m_wasLong || m_log->timesEach() || m_sinceTimed++ % TimedOfShort == 0);
        m_clock.begin();
    }
    if (!m_isOn)
        return;
    if (m_isTimed)
        collect();
    m_clock.run();
    if (m_isTimed)
        m_gpu.beginPiece();
}

void xsg::FrameMeter::endPiece()
{
    if (!m_isOn)
        return;
    if (m_isTimed)
        m_gpu.endPiece();
    m_clock.stop();
}

void xsg::FrameMeter::file(const SoRenderer::Statistics& statistics)
{
    if (!std::exchange(m_isOn, false))
        return;
    SoFrame frame;
    m_clock.fillIn(frame);
    frame[SoFrame::DrawCalls] = statistics.drawCalls;
    frame[SoFrame::Triangles] = statistics.triangles;
    frame[SoFrame::StateChanges] = statistics.stateChanges;
    frame[SoFrame::Uploads] = statistics.bufferUploads;
    frame[SoFrame::UploadedBytes] = statistics.uploadedBytes;
    frame[SoFrame::TextureBytes] = statistics.textureBytes;
    frame[SoFrame::NodesVisited] = statistics.nodes;
    frame[SoFrame::ShapesCulled] = statistics.culled;
    m_wasLong = frame[SoFrame::Whole] >= LongFrame;
    const std::uint64_t number = m_log->add(frame);
    if (m_isTimed)
        m_gpu.endFrame(number);
}

void xsg::FrameMeter::collect()
{
    GpuTimer::Answer answer{};
    while (m_gpu.takeAnswer(answer))
        m_log->setGpu(answer.frame, answer.nanoseconds);
}

void xsg::FrameMeter::release()
{
    m_isOn = false;
    m_gpu.release();
}
