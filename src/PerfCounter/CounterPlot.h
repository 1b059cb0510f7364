// SPDX-License-Identifier: MIT
// What the plots of the viewer have in common.
#pragma once

class QString;
class QwtPlot;

namespace counterPlot
{

/// White, with axes that are easy to see, "Per second" on the left one, and redrawn on request only.
void prepare(QwtPlot& plot);
/// In the plot's own font, where the toolkit's is large and bold.
void setAxisTitle(QwtPlot& plot, int axis, const QString& text);

} // namespace counterPlot
