// SPDX-License-Identifier: MIT
#include "viewport/MeasureTool.h"

#include "viewport/HoverMark.h"
#include "viewport/SceneView.h"
#include "viewport/SelectionMeasure.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace scopix
{

namespace
{

constexpr int FrameMs = 16;
constexpr int ShownDigits = 6;
constexpr double MarkSize = 5;

// With all digits it reads back to the same bits.
QString numberText(double value, bool isExact)
{
    return QLocale::c().toString(value, 'g', isExact ? int(QLocale::FloatingPointShortest) : ShownDigits);
}

QString vectorText(const SbVec3d& v, bool isExact)
{
    return QStringList{numberText(v[0], isExact), numberText(v[1], isExact), numberText(v[2], isExact)}.join(
        QLatin1Char(' '));
}

std::optional<QPointF> placeOf(const ViewSight& sight, const SbVec3d& point)
{
    return sight.toScreen(
        SbVec3f(static_cast<float>(point[0]), static_cast<float>(point[1]), static_cast<float>(point[2])));
}

bool isCopy(const QKeyEvent& event)
{
    return event.key() == Qt::Key_C && event.modifiers() == Qt::ControlModifier;
}

} // namespace

MeasureTool::MeasureTool(SceneView& view, SelectionMeasure& selection)
    : m_view(view)
    , m_selection(selection)
{
    connect(&selection, &SelectionMeasure::ready, this, [this] { m_view.repaintTools(); });
}

MeasureTool::~MeasureTool() = default;

void MeasureTool::setOn(bool on)
{
    if (on == m_isOn)
        return;
    m_isOn = on;
    m_points.clear();
    m_hovered.reset();
    m_hoverAt.reset();
    m_timer.stop();
    m_selection.want(on);
    m_view.repaintTools();
    emit changed(on);
}

bool MeasureTool::mousePressed(QMouseEvent& event)
{
    m_pressed = event.pos();
    m_hovered.reset();
    m_hoverAt.reset();
    if (m_isOn)
        m_view.repaintTools();
    return false;
}

bool MeasureTool::mouseMoved(QMouseEvent& event)
{
    if (!m_isOn || event.buttons() != Qt::NoButton)
        return false;
    m_hoverAt = event.pos();
    if (!m_timer.isActive())
        m_timer.start(static_cast<int>(std::max<qint64>(FrameMs, 2 * m_hoverMs)), this);
    return false;
}

// The second click of two is one more point.
bool MeasureTool::mouseDoubleClicked(QMouseEvent& event)
{
    if (!m_isOn || event.button() != Qt::LeftButton)
        return false;
    take(event.pos());
    return true;
}

void MeasureTool::mouseLeft()
{
    m_hoverAt.reset();
    m_hovered.reset();
    m_timer.stop();
    if (m_isOn)
        m_view.repaintTools();
}

void MeasureTool::timerEvent(QTimerEvent* /*event*/)
{
    m_timer.stop();
    hover();
}

void MeasureTool::hover()
{
    if (!m_isOn || !m_hoverAt)
        return;
    QElapsedTimer time;
    time.start();
    m_lookedAt = *m_hoverAt;
    m_hovered = findSnap(m_view, *m_hoverAt);
    m_hoverMs = time.elapsed();
    m_view.repaintTools();
}

void MeasureTool::take(const QPoint& place)
{
    const auto snap = findSnap(m_view, place);
    if (!snap)
        return;
    if (m_points.size() == 2)
        m_points.clear();
    m_points.append(*snap);
    m_view.repaintTools();
}

bool MeasureTool::wantsKey(const QKeyEvent& event)
{
    return m_isOn && (isCopy(event) || event.key() == Qt::Key_Escape);
}

bool MeasureTool::keyPressed(QKeyEvent& event)
{
    if (!m_isOn)
        return false;
    if (isCopy(event)) {
        QGuiApplication::clipboard()->setText(getText());
        return true;
    }
    if (event.key() == Qt::Key_Escape) {
        setOn(false);
        return true;
    }
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (!isEnter || (event.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    take(m_crosshair ? m_crosshair().value_or(m_view.rect().center()) : m_view.rect().center());
    return true;
}

QString MeasureTool::makeText(bool isExact) const
{
    QStringList lines;
    const auto add = [&](const QString& name, const QString& value) {
        lines += QStringLiteral("%1: %2").arg(name, value);
    };
    if (m_points.size() == 2) {
        const SbVec3d by = m_points[1].point - m_points[0].point;
        add(tr("Distance"), numberText(by.length(), isExact));
        add(tr("Along x, y, z"), vectorText(by, isExact));
    } else if (m_points.size() == 1) {
        add(tr("From"), vectorText(m_points[0].point, isExact));
    }
    const auto edge = std::find_if(m_points.rbegin(), m_points.rend(),
                                   [](const Snap& snap) { return snap.kind == Snap::Kind::Edge; });
    if (m_hovered && m_hovered->kind == Snap::Kind::Edge)
        add(tr("Edge"), numberText(m_hovered->getEdgeLength(), isExact));
    else if (edge != m_points.rend())
        add(tr("Edge"), numberText(edge->getEdgeLength(), isExact));
    if (m_selection.isReady() && m_selection.getSum().hasBox) {
        const SoMeasureAction::Sum& sum = m_selection.getSum();
        add(tr("Box of the selection"), vectorText(sum.getSize(), isExact));
        add(tr("Area"), numberText(sum.area, isExact));
        add(tr("Triangles"), QString::number(sum.triangles));
    }
    return lines.join(QLatin1Char('\n'));
}

void MeasureTool::paintPoint(QPainter& painter, const ViewSight& sight, const Snap& snap) const
{
    if (snap.kind == Snap::Kind::Edge) {
        const auto from = placeOf(sight, snap.from);
        const auto to = placeOf(sight, snap.to);
        if (from && to)
            painter.drawLine(*from, *to);
    }
    const auto at = placeOf(sight, snap.point);
    if (!at)
        return;
    const QRectF mark(at->x() - MarkSize, at->y() - MarkSize, 2 * MarkSize, 2 * MarkSize);
    if (snap.kind == Snap::Kind::Vertex)
        painter.drawRect(mark);
    else
        painter.drawEllipse(mark);
}

void MeasureTool::paint(QPainter& painter, const ViewSight& sight)
{
    if (!m_isOn)
        return;
    m_selection.refresh();
    const std::optional<QPoint> crosshair = m_crosshair ? m_crosshair() : std::nullopt;
    if (crosshair && *crosshair != m_lookedAt && !m_timer.isActive()) {
        m_hoverAt = crosshair;
        m_timer.start(FrameMs, this);
    }
    painter.setBrush(Qt::NoBrush);
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 4), QPen(QColor(255, 210, 60), 2)}) {
        painter.setPen(pen);
        for (const Snap& point : m_points)
            paintPoint(painter, sight, point);
        if (m_hovered)
            paintPoint(painter, sight, *m_hovered);
        const auto from = m_points.size() == 2 ? placeOf(sight, m_points[0].point) : std::nullopt;
        const auto to = m_points.size() == 2 ? placeOf(sight, m_points[1].point) : std::nullopt;
        if (from && to)
            painter.drawLine(*from, *to);
    }
    const QString numbers = makeText(false);
    const QString hint = m_points.size() == 1 ? tr("Click the second point.")
                                              : tr("Click two points. Ctrl+C copies, Esc ends.");
    paintLabel(painter, QPoint(8, 8), numbers.isEmpty() ? hint : numbers + QLatin1Char('\n') + hint,
               m_view.rect());
}

std::optional<QCursor> MeasureTool::getCursor() const
{
    return m_isOn ? std::optional<QCursor>(Qt::CrossCursor) : std::nullopt;
}

} // namespace scopix
