// SPDX-License-Identifier: MIT
#include <xsg/render/FrameMeter.h>

#include <xsg/frames/SoFrameLog.h>

#include <algorithm>

namespace
{

constexpr std::int64_t LongFrame = 2'000'000; // beside which the queries are nothing
constexpr std::int64_t AskingPart = 200;      // of the time of the others, at most
constexpr std::int64_t MostOwed = 20'000;
constexpr int UncollectedFrames = 8;

} // namespace

void xsg::FrameMeter::beginPiece(bool begins)
{
    if (begins) {
        if (m_isOn && m_isTimed)
            m_gpu.endFrame(0); // of a picture that was given up
        m_isOn = m_log && m_log->isOn();
        m_isTimed = m_isOn && (m_wasLong || m_saved >= 0 || m_log->timesEach());
        m_clock.begin();
    }
    if (!m_isOn)
        return;
    if (m_isTimed || ++m_sinceCollected == UncollectedFrames)
        ask([this] { collect(); });
    m_clock.run();
    if (m_isTimed)
        ask([this] { m_gpu.beginPiece(); });
}

void xsg::FrameMeter::endPiece()
{
    if (!m_isOn)
        return;
    if (m_isTimed)
        ask([this] { m_gpu.endPiece(); });
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
    m_saved = std::clamp(m_saved + frame[SoFrame::Whole] / AskingPart, -MostOwed, MostOwed);
    const std::uint64_t number = m_log->add(frame);
    if (m_isTimed)
        m_gpu.endFrame(number);
}

template <class Act>
void xsg::FrameMeter::ask(const Act& act)
{
    const std::int64_t begin = SoFrameLog::now();
    act();
    m_saved -= SoFrameLog::now() - begin;
}

void xsg::FrameMeter::collect()
{
    m_sinceCollected = 0;
    GpuTimer::Answer answer{};
    while (m_gpu.takeAnswer(answer))
        m_log->setGpu(answer.frame, answer.nanoseconds);
}

void xsg::FrameMeter::release()
{
    m_isOn = false;
    m_gpu.release();
}
