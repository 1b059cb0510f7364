#include "PlotToolTip.h"

#include <qwt_plot.h>

#include <QHelpEvent>
#include <QToolTip>

PlotToolTip::PlotToolTip(QwtPlot* plot, TextAt textAt)
    : QObject(plot)
    , m_textAt(std::move(textAt))
{
    plot->canvas()->installEventFilter(this);
}

bool PlotToolTip::eventFilter(QObject* canvas, QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QObject::eventFilter(canvas, event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), m_textAt(help->pos()), qobject_cast<QWidget*>(canvas));
    return true;
}
