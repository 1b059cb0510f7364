// SPDX-License-Identifier: MIT
#pragma once

#include <qwt_plot_item.h>
#include <qwt_samples.h>

#include <QColor>
#include <QList>
#include <QVector>

#include <memory>
#include <vector>

using QwtIntervalData = QVector<QwtIntervalSample>;

/// The bars of the graph view: one interval, one value and one colour per counter.
class SoPerfCounterGraph : public QwtPlotItem
{
public:
    explicit SoPerfCounterGraph(const QString& title);

    void setData(const QwtIntervalData& data);
    const QwtIntervalData& data() const { return m_data; }
    double baseline() const { return m_baseline; }

    /// Colour i paints bar i; the graph takes it over.
    void addColor(QColor* color);
    void clearColor();

    int rtti() const override;
    QRectF boundingRect() const override;
    void draw(QPainter* painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
              const QRectF& canvasRect) const override;

protected:
    virtual void drawBar(QPainter* painter, Qt::Orientation orientation, const QRect& rect,
                         QColor color) const;

private:
    QwtIntervalData m_data;
    double m_baseline = 0;
    std::vector<std::unique_ptr<QColor>> m_colors;
};
