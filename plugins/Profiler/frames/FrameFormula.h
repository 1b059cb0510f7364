// SPDX-License-Identifier: MIT
#pragma once

#include <scopix/editing/expression/SpxExpression.h>
#include <xsg/frames/SoFrameRecording.h>

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
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
    /// Frames of a series that were there at the last call are not computed again. `first`: how many of the
    /// series came before the first of these.
    const std::vector<double>& follow(const SoFrameRecording& frames, std::uint64_t series,
                                      std::uint64_t first);
    /// The same of frames that belong to no series.
    std::vector<double> evaluate(const SoFrameRecording& frames);
    /// Of the last call.
    const std::vector<double>& getValues() const { return m_values; }
    const QString& getProblem() const { return m_problem; }
    /// For how many frames it was computed so far, each time counted.
    std::uint64_t getNumComputed() const { return m_numComputed; }
    /// "ms", "B", "/s" and such; empty for counts and for what mixes units.
    QString getUnit(const SoFrameRecording& frames) const;
    /// The names of columns and counters that it mentions.
    std::vector<SbName> getNames() const;

private:
    struct Window {
        enum Kind { Rate, Mean } kind;
        std::unique_ptr<FrameFormula> inner;
        double seconds;
        std::vector<double> values = {}; // as m_values
    };
    void takeWindows();
    void expandCounters();
    void restart(const std::vector<std::string>& columns);
    bool followWindows(const SoFrameRecording& frames, std::uint64_t series, std::uint64_t first);
    void compute(const SoFrameRecording& frames);
    static void extend(Window& window, const std::vector<double>& seconds);
    static void extendMean(Window& window, const std::vector<double>& seconds);

    QString m_text;
    std::string m_formula; // with names in place of windows
    std::vector<Window> m_windows;
    SpxExpression m_expression;
    std::vector<std::string> m_columns; // that it is compiled for
    bool m_isCompiled = false;
    std::uint64_t m_series = 0;
    std::uint64_t m_first = 0;
    std::vector<double> m_values; // of the frames from m_first on
    std::uint64_t m_numComputed = 0;
    QString m_problem;
};

} // namespace profiler
