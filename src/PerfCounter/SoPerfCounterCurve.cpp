// SPDX-License-Identifier: MIT
#include "SoPerfCounterCurve.h"

#include "PlotToolTip.h"
#include "SampleText.h"

#include <qwt_painter.h>
#include <qwt_point_data.h>
#include <qwt_scale_map.h>

#include <QLineF>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

// How far from a curve the pointer still means it, in pixels.
constexpr double NearestDistance = 12.0;
// Points whose outlines are drawn within a tenth of the shortest time between two samples.
constexpr std::size_t MostOutlined = 1000;

// Looking for the limits point by point, as the toolkit does, takes longer than drawing the curve.
class RawHistory : public QwtCPointerData
{
public:
    using QwtCPointerData::QwtCPointerData;

    QRectF boundingRect() const override
    {
        const int count = int(size());
        double low = std::numeric_limits<double>::max();
        double high = std::numeric_limits<double>::lowest();
        for (const double* y = yData(); y != yData() + count; ++y) {
            low = std::min(low, *y);
            high = std::max(high, *y);
        }
        if (count == 0)
            return {1.0, 1.0, -2.0, -2.0}; // which the toolkit takes for none
        return {xData()[count - 1], low, xData()[0] - xData()[count - 1], high - low};
    }
};

double distance(const QPointF& point, const QLineF& segment)
{
    const QPointF along = segment.p2() - segment.p1();
    const double squared = QPointF::dotProduct(along, along);
    const double part = squared > 0 ? QPointF::dotProduct(point - segment.p1(), along) / squared : 0;
    return QLineF(point, segment.pointAt(std::clamp(part, 0.0, 1.0))).length();
}

// The sample of a curve that a place of the canvas means; further than `best` away none is.
int sampleAt(const Curve& curve, const QPointF& place, const QwtScaleMap& x, const QwtScaleMap& y,
             double& best)
{
    const auto pointOf = [&](int i) {
        const QPointF sample = curve.sample(i);
        return QPointF(x.transform(sample.x()), y.transform(sample.y()));
    };
    int nearest = -1;
    for (int i = 0; i < int(curve.dataSize()); ++i) {
        const int next = std::min(i + 1, int(curve.dataSize()) - 1);
        const QLineF segment(pointOf(i), pointOf(next));
        const double away = distance(place, segment);
        if (!(away <= best))
            continue;
        best = away;
        nearest = std::abs(place.x() - segment.x1()) <= std::abs(place.x() - segment.x2()) ? i : next;
    }
    return nearest;
}

} // namespace

Curve::Curve(const QString& title)
    : QwtPlotCurve(title)
{
}

Curve::~Curve() = default;

SoPerfCounterCurve::SoPerfCounterCurve(QWidget* parent)
    : QwtPlot(parent)
{
    setAutoReplot(false);
    setCanvasBackground(Qt::white);
    new PlotToolTip(this, [this](const QPoint& place) { return textAt(place); });
}

void SoPerfCounterCurve::newCurve(const QString& name, int r, int g, int b)
{
    auto* curve = new Curve(name);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    // The axes follow the samples: there is nothing to clip, and looking for it costs.
    curve->setPaintAttribute(QwtPlotCurve::ClipPolygons, false);
    curve->setPen(QPen(QColor(r, g, b, 255)));
    curve->attach(this);
    m_curves.append(curve);
}

void SoPerfCounterCurve::setColor(int index, const QColor& color)
{
    if (index >= 0 && index < m_curves.size())
        m_curves[index]->setPen(QPen(color));
}

void SoPerfCounterCurve::removeCurve(int index)
{
    if (index < 0 || index >= m_curves.size())
        return;
    Curve* curve = m_curves.takeAt(index);
    curve->detach();
    delete curve;
}

void SoPerfCounterCurve::order(const std::vector<int>& indices)
{
    const QList<Curve*> before = m_curves;
    std::transform(indices.begin(), indices.end(), m_curves.begin(), [&](int i) { return before.at(i); });
}

void SoPerfCounterCurve::setRawSamples(int index, const double* x, const double* y, int count)
{
    while (count > 0 && std::isnan(y[count - 1]))
        --count;
    m_curves[index]->setData(new RawHistory(x, y, std::size_t(count)));
}

bool SoPerfCounterCurve::isFast(const QPen& pen) const
{
    return pen.isCosmetic() || devicePixelRatioF() <= 1;
}

void SoPerfCounterCurve::replot()
{
    // Lines that are several pixels of a dense screen wide are for as many points as can be drawn in time.
    std::size_t points = 0;
    for (const Curve* curve : qAsConst(m_curves))
        points += curve->dataSize();
    const bool isFine = devicePixelRatioF() > 1 && points > MostOutlined;
    for (Curve* curve : qAsConst(m_curves)) {
        QPen pen = curve->pen();
        pen.setCosmetic(isFine);
        curve->setPen(pen);
    }
    QwtPlot::replot();
}

void SoPerfCounterCurve::drawCanvas(QPainter* painter)
{
    // The toolkit cuts lines into short pieces, which is good for outlines and costs time otherwise.
    const bool isCut = QwtPainter::polylineSplitting();
    if (!m_curves.isEmpty())
        QwtPainter::setPolylineSplitting(!isFast(m_curves.first()->pen()));
    QwtPlot::drawCanvas(painter);
    QwtPainter::setPolylineSplitting(isCut);
}

double SoPerfCounterCurve::periodOf(int index) const
{
    return m_periods && std::size_t(index) < m_periods->size() ? (*m_periods)[std::size_t(index)] : 0;
}

QString SoPerfCounterCurve::textAt(const QPoint& position) const
{
    const QwtScaleMap x = canvasMap(QwtPlot::xBottom);
    const QwtScaleMap y = canvasMap(QwtPlot::yLeft);
    QString text;
    double best = NearestDistance;
    for (const Curve* curve : m_curves) {
        const int index = sampleAt(*curve, position, x, y, best);
        if (index >= 0)
            text = sampleText(curve->title().text(), curve->sample(std::size_t(index)).y(), periodOf(index));
    }
    return text;
}
