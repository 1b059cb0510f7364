// SPDX-License-Identifier: MIT
#include "live/LiveFrames.h"

#include <xsg/frames/SoFrameLog.h>

#include <algorithm>
#include <optional>

namespace scopix
{

namespace
{

constexpr std::int64_t Most = std::int64_t(1) << 60; // sums of a few of them are numbers still

std::optional<SoFrame::Figure> figureCalled(const std::string& name)
{
    for (int i = 0; i < SoFrame::NumFigures; ++i) {
        const auto figure = static_cast<SoFrame::Figure>(i);
        if (name == SoFrame::getName(figure))
            return figure;
    }
    return std::nullopt;
}

bool isPhase(int figure)
{
    return figure >= SoFrame::Update && figure < SoFrame::Update + SoFrame::NumPhases;
}

// Phases that the program does not know take no time, so that the others are a whole.
SoFrame emptyFrame()
{
    SoFrame frame;
    for (int i = 0; i < SoFrame::NumFigures; ++i)
        frame.figures[static_cast<std::size_t>(i)] = isPhase(i) ? 0 : SoFrame::Missing;
    frame[SoFrame::Gpu] = SoFrame::Unknown;
    return frame;
}

} // namespace

void logFrames(const live::FrameTable& frames, SoFrameLog& log)
{
    std::vector<std::optional<SoFrame::Figure>> figures;
    for (const std::string& column : frames.columns)
        figures.push_back(figureCalled(column));
    for (std::size_t row = 0; !figures.empty() && row + figures.size() <= frames.values.size();
         row += figures.size()) {
        SoFrame frame = emptyFrame();
        for (std::size_t i = 0; i < figures.size(); ++i) {
            const std::int64_t value = frames.values[row + i];
            if (figures[i] && value >= 0)
                frame[*figures[i]] = std::min(value, Most);
        }
        if (frame[SoFrame::Begin] == SoFrame::Missing)
            frame[SoFrame::Begin] = SoFrameLog::now();
        log.addOther(frame);
    }
}

} // namespace scopix
