// SPDX-License-Identifier: MIT
#include "PlotToolTip.h"

#include <qwt_plot.h>

#include <QHelpEvent>
#include <QTextDocument>
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
    QString text = m_textAt(help->pos());
    if (Qt::mightBeRichText(text)) // a tip would take such a name for markup
        text = QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped());
    QToolTip::showText(help->globalPos(), text, qobject_cast<QWidget*>(canvas));
    return true;
}
