// SPDX-License-Identifier: MIT
#include "CounterPlot.h"

#include <QCoreApplication>

#include <qwt_plot.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_engine.h>
#include <qwt_text.h>

namespace
{

constexpr int AxisPenWidth = 2;

// Where nothing is counted the toolkit shows a span around 0, though few counters ever fall below it.
class CountScaleEngine : public QwtLinearScaleEngine
{
public:
    void autoScale(int maxSteps, double& from, double& to, double& step) const override
    {
        if (from == 0 && to == 0)
            to = 1;
        QwtLinearScaleEngine::autoScale(maxSteps, from, to, step);
    }
};

} // namespace

void counterPlot::prepare(QwtPlot& plot)
{
    plot.setAutoReplot(false);
    plot.setCanvasBackground(Qt::white);
    for (const int axis : {int(QwtPlot::yLeft), int(QwtPlot::xBottom)})
        plot.axisScaleDraw(axis)->setPenWidth(AxisPenWidth);
    plot.setAxisScaleEngine(QwtPlot::yLeft, new CountScaleEngine); // the plot's
    setAxisTitle(plot, QwtPlot::yLeft, QCoreApplication::translate("SoPerfCounterViewer", "Per second"));
}

void counterPlot::setAxisTitle(QwtPlot& plot, int axis, const QString& text)
{
    QwtText title(text);
    title.setFont(plot.font());
    plot.setAxisTitle(axis, title);
}
