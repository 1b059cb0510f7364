// SPDX-License-Identifier: MIT
#pragma once

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <QList>

#include <deque>
#include <vector>

class Curve : public QwtPlotCurve
{
public:
    explicit Curve(const QString& title);
    ~Curve() override;
};

/// The plot of the viewed counters over time, one curve each, drawn from the counters' own histories.
class SoPerfCounterCurve : public QwtPlot
{
    Q_OBJECT

public:
    explicit SoPerfCounterCurve(QWidget* parent = nullptr);

    /// In the order of the viewed counters.
    const QList<Curve*>& getCurveList() const { return m_curves; }
    void newCurve(const QString& name, int r, int g, int b);
    void setColor(int index, const QColor& color);
    void removeCurve(int index);
    /// Curve i becomes the one whose index stands at i.
    void order(const std::vector<int>& indices);
    /// Draws the curve from these arrays, which stay the caller's and have to live until the next call for
    /// this curve. The newest sample comes first; the oldest ones are not drawn as far as they are NaN.
    void setRawSamples(int index, const double* x, const double* y, int count);

    /// The seconds that each sample was divided by, the newest first; they stay the caller's and have to live
    /// as long as the plot is used.
    void setPeriods(const std::deque<double>& periods) { m_periods = &periods; }

    /// Name and value of the curve under a point of the canvas; empty where no curve is near.
    QString textAt(const QPoint& canvasPosition) const;

public slots:
    void replot() override;

protected:
    void drawCanvas(QPainter* painter) override;

private:
    /// Whether Qt draws lines of this pen without first making outlines of them, which takes twenty times as
    /// long.
    bool isFast(const QPen& pen) const;
    double periodOf(int index) const;

    QList<Curve*> m_curves;
    const std::deque<double>* m_periods = nullptr;
};
