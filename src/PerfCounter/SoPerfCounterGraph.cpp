// SPDX-License-Identifier: MIT
#include "SoPerfCounterGraph.h"

#include <qwt_scale_map.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace
{

// The share of its interval that a bar leaves free on each side.
constexpr double Gap = 0.1;
constexpr int OutlineFactor = 125;

} // namespace

SoPerfCounterGraph::SoPerfCounterGraph(const QString& title)
    : QwtPlotItem(QwtText(title))
{
    setItemAttribute(QwtPlotItem::AutoScale, true);
    setZ(20.0);
}

void SoPerfCounterGraph::setData(const QwtIntervalData& data)
{
    m_data = data;
    itemChanged();
}

void SoPerfCounterGraph::addColor(QColor* color)
{
    m_colors.emplace_back(color);
}

void SoPerfCounterGraph::clearColor()
{
    m_colors.clear();
}

int SoPerfCounterGraph::rtti() const
{
    return QwtPlotItem::Rtti_PlotUserItem;
}

QRectF SoPerfCounterGraph::boundingRect() const
{
    if (m_data.isEmpty())
        return QwtPlotItem::boundingRect();
    double low = m_baseline;
    double high = m_baseline;
    for (const QwtIntervalSample& bar : m_data) {
        if (!std::isfinite(bar.value))
            continue;
        low = std::min(low, bar.value);
        high = std::max(high, bar.value);
    }
    const double left = m_data.first().interval.minValue();
    return {left, low, m_data.last().interval.maxValue() - left, high - low};
}

void SoPerfCounterGraph::draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                              const QRectF& /*canvasRect*/) const
{
    const int bottom = qRound(yMap.transform(m_baseline));
    for (int i = 0; i < m_data.size(); ++i) {
        const QwtIntervalSample& bar = m_data[i];
        if (!std::isfinite(bar.value))
            continue;
        const double gap = Gap * bar.interval.width();
        const int left = qRound(xMap.transform(bar.interval.minValue() + gap));
        const int right = qRound(xMap.transform(bar.interval.maxValue() - gap));
        const int top = qRound(yMap.transform(bar.value));
        const QColor color =
            std::size_t(i) < m_colors.size() ? *m_colors[std::size_t(i)] : QColor(Qt::darkGray);
        drawBar(painter, Qt::Vertical, QRect(QPoint(left, top), QPoint(right, bottom)).normalized(), color);
    }
}

void SoPerfCounterGraph::drawBar(QPainter* painter, Qt::Orientation /*orientation*/, const QRect& rect,
                                 QColor color) const
{
    painter->fillRect(rect, color);
    // Light from the top left makes the bar look raised. Strips, since the ends of pens would stick out.
    const QColor light = color.lighter(OutlineFactor);
    const QColor dark = color.darker(OutlineFactor);
    const auto strip = [&](int left, int top, int width, int height, const QColor& shade) {
        painter->fillRect(rect.intersected(QRect(left, top, width, height)), shade);
    };
    strip(rect.left(), rect.top(), 2, rect.height(), light);
    strip(rect.right() - 1, rect.top(), 2, rect.height(), dark);
    strip(rect.left(), rect.top(), rect.width(), 1, light);
    strip(rect.left(), rect.bottom(), rect.width(), 1, dark);
}
