// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/frames/SoFrameRecording.h>

#include <QStringList>

namespace profiler
{

/// What is to be said about frames in words.
struct FrameReport {
    /// "400 frames: longest 34 ms, mean 4.2 ms, 95 % within 8 ms, 99 % within 20 ms; 3 over 16.7 ms".
    static QString summary(const SoFrameRecording& frames, int first, int end, double budget);
    /// What this frame has that its neighbours have not, the most conspicuous first: phases that took longer,
    /// counters that jumped, and what was done just before. One line each; the first says how long it took.
    static QStringList differences(const SoFrameRecording& frames, int frame);
};

} // namespace profiler
