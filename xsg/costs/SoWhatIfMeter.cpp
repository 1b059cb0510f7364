// SPDX-License-Identifier: MIT
#include <xsg/costs/SoWhatIfMeter.h>

#include <algorithm>
#include <cmath>

namespace
{

constexpr int PicturesInAll = SoWhatIfMeter::PicturesOfRun + 2; // see SoCostPictures

double millisecondsOf(const SoFrame& frame)
{
    return static_cast<double>(std::max(frame[SoFrame::Whole], frame[SoFrame::Gpu])) * 1e-6;
}

} // namespace

SoWhatIfMeter::SoWhatIfMeter(SoNode* root, const SoNode* without, const SoCamera* camera, int width,
                             int height, const SoFittingImageReader& reader, const SoHiding& hiding)
    : m_without(const_cast<SoNode*>(without))
    , m_pictures(root, camera, width, height, reader, hiding)
{
    beginRun();
}

void SoWhatIfMeter::beginRun()
{
    if (m_run % 2 == 0)
        m_pictures.showAll();
    else
        m_pictures.hide(m_without.get());
}

bool SoWhatIfMeter::step()
{
    if (m_run == 2 * Runs || !m_pictures.draw())
        return false;
    if (m_pictures.getNumDrawn() == PicturesInAll)
        finishRun();
    return m_run < 2 * Runs;
}

void SoWhatIfMeter::finishRun()
{
    for (const SoFrame& frame : m_pictures.getFrames())
        m_times[m_run % 2].push_back(millisecondsOf(frame));
    ++m_run;
    beginRun();
}

double SoWhatIfMeter::getProgress() const
{
    const int drawn = m_run * PicturesInAll + m_pictures.getNumDrawn();
    return std::min(1.0, static_cast<double>(drawn) / (2 * Runs * PicturesInAll));
}

double SoWhatIfMeter::getSpread() const
{
    return std::hypot(SoFrameSummary::of(getWith()).spread, SoFrameSummary::of(getWithout()).spread);
}
