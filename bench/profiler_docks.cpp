// SPDX-License-Identifier: MIT
// What the dock "Frames" takes to draw 1,000 frames and 20 counters, against a bare widget that draws as many
// rectangles and lines and computes nothing; and to take in what comes ten times a second.
#include "Ratios.h"
#include "frames/FramesPanel.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace
{

using namespace profiler;

constexpr int Frames = 1000;
constexpr int Counters = 20;
constexpr int FramesAtOnce = 6; // at 60 a second
constexpr QSize Size(2400, 240);

double wave(int counter, int frame)
{
    return 2 + std::sin((frame + 11 * counter) * 0.05) + 0.3 * std::sin((frame + counter) * 1.7);
}

void addFrame(SoFrameLog& log, int number)
{
    SoFrame frame;
    frame[SoFrame::Begin] = 16'666'667LL * (number + 1);
    for (int figure = SoFrame::Whole; figure < SoFrame::NumFigures; ++figure)
        frame.figures[static_cast<std::size_t>(figure)] = std::llround(wave(figure, number) * 1e6);
    log.add(frame);
}

// A panel with curves of all figures.
struct Panel {
    Panel()
    {
        panel.resize(Size.width(), 2 * Size.height());
        panel.getBars().setBarWidth(1);
        panel.show();
        for (int figure = SoFrame::Whole; figure < SoFrame::Whole + Counters; ++figure)
            panel.addCurve(QString::fromLatin1(SoFrame::getName(static_cast<SoFrame::Figure>(figure))));
        panel.getStore().setWatched(true);
        for (; number < Frames; ++number)
            addFrame(log, number);
        panel.getStore().takeNow();
        panel.getBars().resize(Size);
    }
    ~Panel() { panel.getStore().setWatched(false); }
    SoFrameLog log;
    FramesPanel panel{log};
    int number = 0;
};

// As many rectangles and lines, without data, scales or words.
class BareBars : public QWidget
{
public:
    BareBars()
    {
        for (int counter = 0; counter < Counters; ++counter) {
            QPainterPath path;
            for (int frame = 0; frame < Frames; ++frame) {
                const QPointF point(frame + 0.5, Size.height() * wave(counter, frame) / 4);
                frame == 0 ? path.moveTo(point) : path.lineTo(point);
            }
            m_paths.push_back(path);
        }
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        for (int frame = 0; frame < Frames; ++frame) {
            for (int phase = 0; phase < SoFrame::NumPhases; ++phase)
                painter.fillRect(QRectF(frame, 30.0 * phase, 1, 30), QColor::fromHsv(60 * phase, 200, 200));
            painter.fillRect(QRectF(frame, 100, 1, 1.5), Qt::black);
        }
        painter.setRenderHint(QPainter::Antialiasing);
        for (const QPainterPath& path : m_paths) {
            painter.setPen(QPen(Qt::blue, 0));
            painter.drawPath(path);
        }
    }

private:
    std::vector<QPainterPath> m_paths;
};

void paint(benchmark::State& state, QWidget& widget)
{
    widget.resize(Size);
    QImage image(Size, QImage::Format_RGB32);
    for (auto _ : state)
        widget.render(&image);
}

void bareWidget(benchmark::State& state)
{
    BareBars bare;
    paint(state, bare);
}
BENCHMARK(bareWidget)->Unit(benchmark::kMillisecond);

void dock(benchmark::State& state)
{
    Panel shown;
    shown.panel.getBars().setParent(nullptr);
    state.counters["frames"] = shown.panel.getBars().getEndSeen() - shown.panel.getBars().getFirstSeen();
    paint(state, shown.panel.getBars());
    shown.panel.getBars().setParent(&shown.panel);
}
BENCHMARK(dock)->Unit(benchmark::kMillisecond);

void framesCome(benchmark::State& state)
{
    Panel shown;
    for (auto _ : state) {
        for (int i = 0; i < FramesAtOnce; ++i)
            addFrame(shown.log, shown.number++);
        shown.panel.getStore().takeNow();
    }
}
BENCHMARK(framesCome)->Unit(benchmark::kMillisecond)->Iterations(200);

// All curves for all frames.
void curvesAnew(benchmark::State& state)
{
    Panel shown;
    for (auto _ : state) {
        for (const FrameCurve& curve : shown.panel.getCurves())
            benchmark::DoNotOptimize(
                FrameFormula(curve.formula.getText()).evaluate(shown.panel.getStore().getFrames()));
    }
}
BENCHMARK(curvesAnew)->Unit(benchmark::kMillisecond);

std::vector<bench::Ratio> ratios()
{
    return {{"the dock's drawing / a bare widget's", "dock", "bareWidget", "aim: at most 2"},
            {"computing all curves anew / taking in new frames", "curvesAnew", "framesCome", ""}};
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("XDG_CONFIG_HOME", "/nonexistent"); // nobody's settings
    QApplication application(argc, argv);
    return bench::run(argc, argv, ratios());
}
