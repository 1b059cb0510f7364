// SPDX-License-Identifier: MIT
#pragma once

#include "CounterSampler.h"

class QPoint;
class QString;
class QwtPlot;
class SoPerfCounterGraph;

/// The view of the latest samples as bars, one beside the other in a plot.
class CounterBarView
{
public:
    /// None is owned; the plot owns the bars.
    CounterBarView(QwtPlot& plot, SoPerfCounterGraph& bars, const CounterSampler& sampler);

    void show(const CounterSampler::Viewed& viewed);
    /// The tool tip of the bar at a place of the canvas; empty where there is none.
    QString textAt(const QPoint& place, const CounterSampler::Viewed& viewed) const;

private:
    QwtPlot& m_plot;
    SoPerfCounterGraph& m_bars;
    const CounterSampler& m_sampler;
};
