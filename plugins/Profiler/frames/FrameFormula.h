// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/expression/SpxExpression.h>
#include <xsg/frames/SoFrameRecording.h>

#include <QString>

#include <memory>
#include <vector>

namespace profiler
{

/// A formula over the columns of frames, such as "Triangles / DrawCalls": one value for each frame, not a
/// number where something is not known. Times are in milliseconds. Two functions see more than one frame:
///
///     rate(x)       x per second, by the time since the frame before
///     mean(x, 2s)   the mean of x over the last two seconds
///
/// A counter that is itself computed from others stands for its formula.
class FrameFormula
{
public:
    explicit FrameFormula(const QString& text);

    const QString& getText() const { return m_text; }
    /// One value for each frame; none where the formula does not hold for these columns: getProblem().
    std::vector<double> evaluate(const SoFrameRecording& frames);
    const QString& getProblem() const { return m_problem; }
    /// "ms", "B", "/s" and such; empty for counts and for what mixes units.
    QString getUnit(const SoFrameRecording& frames) const;
    /// The names of columns and counters that it mentions.
    std::vector<SbName> getNames() const;

private:
    struct Window {
        enum Kind { Rate, Mean } kind;
        std::unique_ptr<FrameFormula> inner;
        double seconds;
    };
    void takeWindows();
    void expandCounters();
    std::vector<double> evaluate(const SoFrameRecording& frames, const Window& window) const;

    QString m_text;
    std::string m_formula; // with names in place of windows
    std::vector<Window> m_windows;
    QString m_problem;
};

} // namespace profiler
