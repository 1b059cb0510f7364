// SPDX-License-Identifier: MIT
#include "frames/FrameReport.h"

#include "frames/FrameBars.h"

#include <xsg/frames/SoFrameStatistics.h>

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace profiler
{

namespace
{

constexpr int Neighbours = 10; // on each side
constexpr int MostLines = 8;
constexpr double Jump = 1.5;       // times what the neighbours have
constexpr double LeastTime = 0.05; // milliseconds: less is of no concern

QString tr(const char* text)
{
    return QCoreApplication::translate("FrameReport", text);
}

QString unitOf(const SoFrameColumn& column)
{
    return QString::fromStdString(column.getShownUnit());
}

double usual(const SoFrameColumn& column, int frame)
{
    SoFrameColumn near{column.name, column.unit, column.isState, {}};
    const int last = std::min(frame + Neighbours, static_cast<int>(column.values.size()) - 1);
    for (int i = std::max(0, frame - Neighbours); i <= last; ++i) {
        if (i != frame)
            near.values.push_back(column.values[static_cast<std::size_t>(i)]);
    }
    return SoFrameSummary::of(near.getKnown()).median;
}

struct Difference {
    double weight;
    QString text;
};

// Nothing where the frame is as its neighbours.
void compare(const SoFrameColumn& column, int frame, std::vector<Difference>& found)
{
    const std::int64_t value = column.values[static_cast<std::size_t>(frame)];
    if (column.name == SoFrame::getName(SoFrame::Begin) || column.name == SoFrame::getName(SoFrame::Whole) ||
        !column.isKnown(value))
        return;
    const double own = column.getShown(value);
    const double others = usual(column, frame);
    const bool isTime = column.unit == "ns";
    if (own <= others * (column.isState ? 1.01 : Jump) || (isTime && own - others < LeastTime))
        return;
    // Times first, by what they add; then what jumped, by how far.
    const double weight = isTime ? 1e6 + own - others : own / std::max(others, 1.0);
    found.push_back({weight, tr("%1 %2 instead of %3")
                                 .arg(QString::fromStdString(column.name), readable(own, unitOf(column)),
                                      readable(others, unitOf(column)))});
}

// What happened after the frame before had begun.
QStringList marksOf(const SoFrameRecording& frames, int frame)
{
    const SoFrameColumn* begin = frames.findColumn(SoFrame::getName(SoFrame::Begin));
    QStringList lines;
    if (!begin || frame == 0)
        return lines;
    const auto place = static_cast<std::size_t>(frame);
    for (const SoFrameMark& mark : frames.marks) {
        if (mark.time > begin->values[place - 1] && mark.time <= begin->values[place])
            lines += tr("“%1”").arg(QString::fromStdString(mark.text));
    }
    return lines;
}

} // namespace

QString FrameReport::summary(const SoFrameRecording& frames, int first, int end, double budget)
{
    const SoFrameColumn* whole = frames.findColumn(SoFrame::getName(SoFrame::Whole));
    if (!whole || first >= end)
        return tr("No frames");
    SoFrameColumn part{whole->name, whole->unit, false, {}};
    part.values.assign(whole->values.begin() + first, whole->values.begin() + end);
    const std::vector<double> times = part.getKnown();
    const SoFrameSummary of = SoFrameSummary::of(times);
    const auto ms = [](double value) { return readable(value, QStringLiteral("ms")); };
    const auto over = std::count_if(times.begin(), times.end(), [budget](double t) { return t > budget; });
    return tr("%1 frames: longest %2, mean %3, 95 % within %4, 99 % within %5; %6 over %7")
        .arg(QString::number(times.size()), ms(of.longest), ms(of.mean), ms(of.percent95), ms(of.percent99),
             QString::number(over), ms(budget));
}

QStringList FrameReport::differences(const SoFrameRecording& frames, int frame)
{
    const SoFrameColumn* whole = frames.findColumn(SoFrame::getName(SoFrame::Whole));
    if (!whole || frame < 0 || frame >= static_cast<int>(frames.getNumFrames()))
        return {};
    const double own = whole->getShown(whole->values[static_cast<std::size_t>(frame)]);
    QStringList lines{
        tr("This frame took %1, its neighbours %2")
            .arg(readable(own, QStringLiteral("ms")), readable(usual(*whole, frame), QStringLiteral("ms")))};
    lines += marksOf(frames, frame);
    std::vector<Difference> found;
    for (const SoFrameColumn& column : frames.columns)
        compare(column, frame, found);
    std::sort(found.begin(), found.end(),
              [](const Difference& a, const Difference& b) { return a.weight > b.weight; });
    for (const Difference& each : found) {
        if (lines.size() < MostLines)
            lines += each.text;
    }
    if (lines.size() == 1)
        lines += tr("Nothing else was different");
    return lines;
}

} // namespace profiler
