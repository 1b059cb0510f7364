// SPDX-License-Identifier: MIT
#include "viewport/SizeBoxTool.h"

#include "viewport/HoverMark.h"
#include "viewport/SceneView.h"
#include "viewport/SelectionMeasure.h"

#include <QLocale>
#include <QPainter>

namespace scopix
{

namespace
{

constexpr int ShownDigits = 6;

// A corner of the box; bit i of its number chooses the end along axis i.
std::optional<QPointF> cornerAt(const ViewSight& sight, const SoMeasureAction::Sum& sum, unsigned number)
{
    SbVec3f corner;
    for (int i = 0; i < 3; ++i)
        corner[i] = static_cast<float>((number >> i) & 1U ? sum.max[i] : sum.min[i]);
    return sight.toScreen(corner);
}

} // namespace

SizeBoxTool::SizeBoxTool(SceneView& view, SelectionMeasure& selection)
    : m_view(view)
    , m_selection(selection)
{
    connect(&selection, &SelectionMeasure::ready, this, [this] { m_view.repaintTools(); });
}

void SizeBoxTool::setOn(bool on)
{
    if (on == m_isOn)
        return;
    m_isOn = on;
    m_selection.want(on);
    m_view.repaintTools();
}

void SizeBoxTool::paint(QPainter& painter, const ViewSight& sight)
{
    if (!m_isOn)
        return;
    m_selection.refresh();
    const SoMeasureAction::Sum& sum = m_selection.getSum();
    if (!m_selection.isReady() || !sum.hasBox)
        return;
    const SbVec3d size = sum.getSize();
    // Each size stands at the lowest edge of its axis in the picture, the height at the one most to the
    // right.
    std::optional<QPointF> labels[3];
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 140), 3), QPen(QColor(255, 255, 255, 220), 1)}) {
        painter.setPen(pen);
        for (unsigned corner = 0; corner < 8; ++corner) {
            for (unsigned axis = 0; axis < 3; ++axis) {
                const unsigned other = corner | (1U << axis);
                const auto from = cornerAt(sight, sum, corner);
                const auto to = cornerAt(sight, sum, other);
                if (other == corner || !from || !to)
                    continue;
                painter.drawLine(*from, *to);
                const QPointF middle = (*from + *to) / 2;
                const auto rank = [axis](const QPointF& p) { return axis == 1 ? p.x() : p.y(); };
                if (!labels[axis] || rank(middle) > rank(*labels[axis]))
                    labels[axis] = middle;
            }
        }
    }
    for (int axis = 0; axis < 3; ++axis) {
        if (labels[axis])
            paintLabel(painter, labels[axis]->toPoint(), QLocale::c().toString(size[axis], 'g', ShownDigits),
                       m_view.rect());
    }
}

} // namespace scopix
