// SPDX-License-Identifier: MIT
#include "CounterBarView.h"

#include "CounterPlot.h"
#include "SampleText.h"
#include "SoPerfCounterGraph.h"
#include "SoPerfCounterPcViewed.h"

#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>

#include <algorithm>

CounterBarView::CounterBarView(QwtPlot& plot, SoPerfCounterGraph& bars, const CounterSampler& sampler)
    : m_plot(plot)
    , m_bars(bars)
    , m_sampler(sampler)
{
    counterPlot::prepare(plot);
    plot.axisScaleDraw(QwtPlot::xBottom)->enableComponent(QwtAbstractScaleDraw::Labels, false);
    plot.setAxisMaxMinor(QwtPlot::xBottom, 0);
    bars.attach(&plot);
}

void CounterBarView::show(const CounterSampler::Viewed& viewed)
{
    m_bars.clearColor();
    QwtIntervalData data;
    for (int i = 0; i < viewed.size(); ++i) {
        const QwtInterval place(i, i + 1, QwtInterval::ExcludeMaximum);
        data.append(QwtIntervalSample(viewed.at(i)->getHistory()[0], place));
        m_bars.addColor(new QColor(viewed.at(i)->getColor()));
    }
    m_bars.setData(data);
    m_plot.setAxisScale(QwtPlot::xBottom, 0, viewed.size(), 1);
    m_plot.replot();
}

QString CounterBarView::textAt(const QPoint& place, const CounterSampler::Viewed& viewed) const
{
    const double x = m_plot.canvasMap(QwtPlot::xBottom).invTransform(place.x());
    const SoPerfCounterPcViewed* bar = x >= 0 ? viewed.value(int(std::min(x, 1e6))) : nullptr;
    return bar ? sampleText(bar->getName(), bar->getHistory()[0], m_sampler.newestPeriod()) : QString();
}
