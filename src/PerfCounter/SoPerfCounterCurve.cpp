#include "SoPerfCounterCurve.h"

#include <qwt_plot_canvas.h>

#include <QHelpEvent>
#include <QPen>
#include <QToolTip>

namespace
{

// How far from a curve the pointer still means it, in pixels.
constexpr double NearestDistance = 12.0;

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
    canvas()->installEventFilter(this);
}

void SoPerfCounterCurve::newCurve(const QString& name, int r, int g, int b)
{
    auto* curve = new Curve(name);
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
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

QString SoPerfCounterCurve::textAt(const QPoint& position) const
{
    const Curve* nearest = nullptr;
    int point = -1;
    double best = NearestDistance;
    for (const Curve* curve : m_curves) {
        double distance = 0;
        const int index = curve->closestPoint(position, &distance);
        if (index >= 0 && distance <= best) {
            best = distance;
            nearest = curve;
            point = index;
        }
    }
    if (!nearest)
        return {};
    return QStringLiteral("%1: %2").arg(nearest->title().text(),
                                        QString::number(nearest->sample(point).y(), 'g', 6));
}

bool SoPerfCounterCurve::eventFilter(QObject* object, QEvent* event)
{
    if (object == canvas() && event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), textAt(help->pos()), canvas());
        return true;
    }
    return QwtPlot::eventFilter(object, event);
}
