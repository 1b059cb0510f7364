// The plot of the viewed counters over time, one curve each, drawn from the counters' own histories.
#pragma once

#include <qwt_plot.h>
#include <qwt_plot_curve.h>

#include <QList>

class Curve : public QwtPlotCurve
{
public:
    explicit Curve(const QString& title);
    ~Curve() override;
};

class SoPerfCounterCurve : public QwtPlot
{
    Q_OBJECT

public:
    explicit SoPerfCounterCurve(QWidget* parent = nullptr);

    // In the order of the viewed counters.
    const QList<Curve*>& getCurveList() const { return m_curves; }
    void newCurve(const QString& name, int r, int g, int b);
    void setColor(int index, const QColor& color);
    void removeCurve(int index);
    void moveCurve(int from, int to) { m_curves.move(from, to); }

    // The newest sample of the curve nearest to a point of the canvas, as text; empty where no curve is near.
    QString textAt(const QPoint& canvasPosition) const;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QList<Curve*> m_curves;
};
