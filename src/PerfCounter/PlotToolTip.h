// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <functional>

class QwtPlot;

/// Gives the canvas of a plot a tool tip that depends on the place under the pointer. Not a QwtPlotPicker,
/// whose text follows every move of the pointer, lies over the samples, and knows nothing of the delay, the
/// style and the screen edges that tool tips have.
class PlotToolTip : public QObject
{
public:
    /// The text for a place of the canvas, in its pixels; an empty text shows none.
    using TextAt = std::function<QString(const QPoint& place)>;

    /// Becomes a child of the plot.
    PlotToolTip(QwtPlot* plot, TextAt textAt);

protected:
    bool eventFilter(QObject* canvas, QEvent* event) override;

private:
    TextAt m_textAt;
};
