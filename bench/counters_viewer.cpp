// SPDX-License-Identifier: MIT
// What one sample of the performance counters costs with its redraw: the viewer with 1, 10 and 100 counters
// and 60 to 960 points, against a bare plot of the toolkit that shows the same points over the same time, and
// as a share of the time between two samples. Then what a sample costs that nobody sees. QT_SCALE_FACTOR=2
// measures as on a high-resolution screen.
#include "SoPerfCounterCurve.h"
#include "SoPerfCounterPcViewed.h"
#include "SoPerfCounterViewer.h"

#include "Ratios.h"

#include <xsg/counters/SoPerfCounterManager.h>

#include <QApplication>
#include <QComboBox>
#include <QTimer>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_scale_draw.h>

#include <cmath>
#include <list>
#include <string>
#include <vector>

namespace
{

constexpr QSize PlotSize(480, 360);
constexpr int AxisPenWidth = 2;

struct Shown {
    int seconds;
    int frequency;
    int points() const { return seconds * frequency; }
};
constexpr Shown Lengths[] = {{30, 2}, {60, 4}, {120, 8}};
constexpr int Counts[] = {1, 10, 100};

QString nameOf(int counter)
{
    return QStringLiteral("bench%1").arg(counter);
}

// What counter `counter` counts until sample `sample`: waves with some noise, as real counters are.
double countOf(int counter, int sample)
{
    const double wave = std::sin((sample + 11 * counter) * 0.05) + 0.3 * std::sin((sample + counter) * 1.7);
    return std::round(100 + 40 * wave + counter);
}

SoPerfAccumCounter& counterNumbered(int number)
{
    auto* registry = SoPerfCounterManager::getInstance();
    const SbName name(nameOf(number).toLatin1().constData());
    if (!registry->getCounter(name))
        registry->registerCounter(new SoPerfAccumCounter(name, "feeds the benchmark", "Bench", 0));
    return *static_cast<SoPerfAccumCounter*>(registry->getCounter(name));
}

// The viewer with counters that move, its timer standing still.
class Viewer
{
public:
    Viewer(int counters, Shown shown)
        : m_counters(counters)
    {
        QList<QString> names;
        for (int i = 0; i < counters; ++i) {
            counterNumbered(i);
            names.append(nameOf(i));
        }
        m_viewer.getTimer()->stop();
        m_viewer.setElapsedSource([](void*) { return 1.0; }, nullptr, nullptr);
        m_viewer.m_timeBox->setCurrentText(QString::number(shown.seconds));
        m_viewer.m_freqBox->setCurrentText(QString::number(shown.frequency));
        m_viewer.setViewList(&names);
        m_viewer.updateViewer();
        for (int i = 0; i < shown.points(); ++i)
            sample();
        m_viewer.getCurvePlot()->setFixedSize(PlotSize);
    }
    void sample()
    {
        for (int i = 0; i < m_counters; ++i)
            counterNumbered(i).increment(std::int64_t(countOf(i, m_sample)));
        ++m_sample;
        m_viewer.viewTimer();
    }
    SoPerfCounterViewer& widget() { return m_viewer; }

private:
    SoPerfCounterViewer m_viewer;
    int m_counters;
    int m_sample = 0;
};

// The least that shows the same: a plot, its curves over raw samples, the same axis.
class BarePlot
{
public:
    BarePlot(int counters, Shown shown)
        : m_shown(shown)
        , m_x(std::size_t(shown.points()))
        , m_y(std::size_t(counters), std::vector<double>(m_x.size()))
    {
        m_plot.setFixedSize(PlotSize);
        m_plot.setCanvasBackground(Qt::white);
        m_plot.setAxisTitle(QwtPlot::xBottom, QStringLiteral("Time (s)"));
        for (const int axis : {int(QwtPlot::yLeft), int(QwtPlot::xBottom)})
            m_plot.axisScaleDraw(axis)->setPenWidth(AxisPenWidth);
        for (std::size_t i = 0; i < m_x.size(); ++i)
            m_x[i] = -double(i) / shown.frequency;
        for (int i = 0; i < counters; ++i) {
            auto* curve = new QwtPlotCurve(nameOf(i));
            curve->setRenderHint(QwtPlotItem::RenderAntialiased);
            curve->setPen(QPen(QColor::fromHsv(i * 37 % 360, 255, 200)));
            curve->attach(&m_plot);
            m_curves.push_back(curve);
        }
        for (int i = 0; i < shown.points(); ++i)
            sample();
    }
    void sample()
    {
        for (double& x : m_x)
            x += 1.0 / m_shown.frequency;
        for (std::size_t i = 0; i < m_y.size(); ++i) {
            std::copy_backward(m_y[i].begin(), m_y[i].end() - 1, m_y[i].end());
            m_y[i].front() = countOf(int(i), m_sample);
            m_curves[i]->setRawSamples(m_x.data(), m_y[i].data(), int(m_x.size()));
        }
        ++m_sample;
        m_plot.setAxisScale(QwtPlot::xBottom, m_x.front() - m_shown.seconds + 1, m_x.front());
        m_plot.replot();
    }
    QwtPlot& widget() { return m_plot; }

private:
    Shown m_shown;
    std::vector<double> m_x;
    std::vector<std::vector<double>> m_y;
    QwtPlot m_plot;
    std::vector<QwtPlotCurve*> m_curves; // the plot's
    int m_sample = 0;
};

template <class Plot>
void measureSamples(benchmark::State& state, Plot& plot, int frequency)
{
    QCoreApplication::processEvents();
    for (auto _ : state) {
        plot.sample();
        QCoreApplication::processEvents(); // which paints
    }
    // Of the time between two samples; 0.1 is the aim.
    using benchmark::Counter;
    state.counters["ofPeriod"] =
        Counter(double(state.iterations()) / frequency, Counter::kIsRate | Counter::kInvert);
}

using Prepare = void (*)(SoPerfCounterViewer& viewer);

void registerViewer(const std::string& name, int counters, Shown shown, Prepare prepare)
{
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        Viewer viewer(counters, shown);
        prepare(viewer.widget());
        measureSamples(state, viewer, shown.frequency);
    });
}

void showCurves(SoPerfCounterViewer& viewer)
{
    viewer.show();
}

// Both draw the same points; returns the ratio to print.
bench::Ratio registerPair(int counters, Shown shown, std::string& what)
{
    what = std::to_string(counters) + " counters of " + std::to_string(shown.points()) +
           " points, over a bare plot";
    const std::string size = std::to_string(counters) + "x" + std::to_string(shown.points());
    registerViewer("curves/" + size, counters, shown, showCurves);
    benchmark::RegisterBenchmark(("bare plot/" + size).c_str(), [=](benchmark::State& state) {
        BarePlot plot(counters, shown);
        plot.widget().show();
        measureSamples(state, plot, shown.frequency);
    });
    return {what.c_str(), "curves/" + size, "bare plot/" + size, "aim: at most 1.3"};
}

void registerOtherViews()
{
    const int most = Counts[2];
    const Shown longest = Lengths[2];
    registerViewer("bars/100x960", most, longest, [](SoPerfCounterViewer& viewer) {
        viewer.graphView();
        viewer.show();
    });
    registerViewer("texts/100x960", most, longest, [](SoPerfCounterViewer& viewer) {
        viewer.textView();
        viewer.show();
    });
    registerViewer("hidden/100x960", most, longest, [](SoPerfCounterViewer&) {});
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    std::list<std::string> texts;
    std::vector<bench::Ratio> ratios;
    for (const int counters : Counts) {
        for (const Shown shown : Lengths)
            ratios.push_back(registerPair(counters, shown, texts.emplace_back()));
    }
    registerOtherViews();
    return bench::run(argc, argv, ratios);
}
