// SPDX-License-Identifier: MIT
#include "frames/FrameBars.h"

#include "frames/FrameColors.h"
#include "frames/FrameStore.h"

#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace profiler
{

namespace
{

constexpr int Margin = 4;
constexpr int MarkHeight = 8;
constexpr int AxisWidth = 64;
constexpr double Headroom = 1.15;

// The columns of the phases, looked up once.
std::vector<const SoFrameColumn*> phasesOf(const SoFrameRecording& frames)
{
    std::vector<const SoFrameColumn*> columns;
    for (int phase = SoFrame::Update; phase <= SoFrame::Draw; ++phase)
        columns.push_back(frames.findColumn(SoFrame::getName(static_cast<SoFrame::Figure>(phase))));
    return columns;
}

// Three digits at least, without zeros at the end.
QString numberText(double value)
{
    const double size = std::abs(value);
    const int decimals = size >= 99.95 ? 0 : size >= 9.995 ? 1 : 2;
    const bool isLong = size >= 10'000;
    QString text =
        isLong ? QLocale(QLocale::English).toString(value, 'f', 0) : QString::number(value, 'f', decimals);
    while (text.contains('.') && (text.endsWith('0') || text.endsWith('.')))
        text.chop(1);
    return text;
}

} // namespace

QString readable(double value, const QString& unit)
{
    if (!std::isfinite(value))
        return QStringLiteral("–");
    const double size = std::abs(value);
    if (unit.startsWith(QLatin1String("ms")) && size > 0 && size < 0.1)
        return numberText(value * 1000) + QStringLiteral(" µs") + unit.mid(2);
    const QString rest = unit.mid(1);
    if (unit.startsWith('B') && size >= 1e6)
        return numberText(value / 1e6) + QStringLiteral(" MB") + rest;
    if (unit.startsWith('B') && size >= 1e3)
        return numberText(value / 1e3) + QStringLiteral(" kB") + rest;
    if (size >= 1e6)
        return numberText(value / 1e6) + QStringLiteral(" M") + unit;
    return unit.isEmpty() ? numberText(value) : numberText(value) + ' ' + unit;
}

FrameBars::FrameBars(const FrameStore& store, QWidget* parent)
    : QWidget(parent)
    , m_store(store)
{
    setObjectName(QStringLiteral("frameBars"));
    setAccessibleName(tr("Frames"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&store, &FrameStore::changed, this, &FrameBars::followStore);
    followStore();
}

void FrameBars::followStore()
{
    const std::uint64_t end = m_store.getFirst() + static_cast<std::uint64_t>(numFrames());
    if (!m_isPaused || m_end > end || !m_store.isLive())
        m_end = end;
    m_end = std::max(m_end, std::min(end, m_store.getFirst() + static_cast<std::uint64_t>(numSeen())));
    update();
}

int FrameBars::numFrames() const
{
    return static_cast<int>(m_store.getFrames().getNumFrames());
}

int FrameBars::numSeen() const
{
    return std::max(1, plot().width() / m_barWidth);
}

int FrameBars::getEndSeen() const
{
    return static_cast<int>(m_end - std::min(m_end, m_store.getFirst()));
}

int FrameBars::getFirstSeen() const
{
    return std::max(0, getEndSeen() - numSeen());
}

QRect FrameBars::plot() const
{
    const int axes = m_curves ? static_cast<int>(m_curves->size()) * AxisWidth : 0;
    return rect().adjusted(Margin, Margin + MarkHeight, -Margin - std::min(axes, width() / 2), -Margin);
}

double FrameBars::getScale() const
{
    double highest = m_budget;
    for (const SoFrame::Figure figure : {SoFrame::Whole, SoFrame::Gpu}) {
        const SoFrameColumn* column = m_store.getFrames().findColumn(SoFrame::getName(figure));
        for (int frame = getFirstSeen(); column && frame < getEndSeen(); ++frame)
            highest = std::max(highest,
                               static_cast<double>(column->values[static_cast<std::size_t>(frame)]) * 1e-6);
    }
    return highest * Headroom;
}

QRect FrameBars::getBar(int frame) const
{
    const QRect area = plot();
    const int left = area.right() + 1 - (getEndSeen() - frame) * m_barWidth;
    return {left, area.top(), m_barWidth, area.height()};
}

int FrameBars::frameAt(int x) const
{
    const QRect area = plot();
    if (x < area.left() || x > area.right())
        return -1;
    const int frame = getEndSeen() - 1 - (area.right() - x) / m_barWidth;
    return frame >= getFirstSeen() ? frame : -1;
}

void FrameBars::setBudget(double milliseconds)
{
    m_budget = milliseconds;
    update();
}

void FrameBars::setBarWidth(int pixels)
{
    m_barWidth = std::clamp(pixels, 1, WidestBar);
    followStore();
}

void FrameBars::setPaused(bool on)
{
    m_isPaused = on;
    followStore();
}

void FrameBars::setCurves(std::vector<FrameCurve>& curves)
{
    m_curves = &curves;
    followStore();
}

int FrameBars::getChosen() const
{
    const bool isThere = m_chosen > m_store.getFirst() &&
                         m_chosen <= m_store.getFirst() + static_cast<std::uint64_t>(numFrames());
    return isThere ? static_cast<int>(m_chosen - 1 - m_store.getFirst()) : -1;
}

int FrameBars::getCursor() const
{
    const bool isPointed = m_pointed > m_store.getFirst() &&
                           m_pointed <= m_store.getFirst() + static_cast<std::uint64_t>(numFrames());
    return isPointed ? static_cast<int>(m_pointed - 1 - m_store.getFirst()) : getChosen();
}

// What is chosen stands still, to be looked at.
void FrameBars::choose(int frame)
{
    const bool isFrame = frame >= 0 && frame < numFrames();
    m_chosen = isFrame ? m_store.getFirst() + static_cast<std::uint64_t>(frame) + 1 : 0;
    if (isFrame && !m_isPaused && m_store.isLive())
        emit pauseRequested(true);
    if (isFrame && frame < getFirstSeen())
        scroll(frame - getFirstSeen());
    else if (isFrame && frame >= getEndSeen())
        scroll(frame + 1 - getEndSeen());
    update();
    emit chosen(getChosen());
    emit cursorMoved();
}

void FrameBars::scroll(int frames)
{
    if (frames < 0 && !m_isPaused && m_store.isLive())
        emit pauseRequested(true);
    const int end = std::clamp(getEndSeen() + frames, std::min(numSeen(), numFrames()), numFrames());
    m_end = m_store.getFirst() + static_cast<std::uint64_t>(end);
    update();
}

void FrameBars::zoom(int steps)
{
    static constexpr int Widths[] = {1, 2, 3, 4, 6, 8, 12, 16, 24, 32, WidestBar};
    const auto* present = std::lower_bound(std::begin(Widths), std::end(Widths), m_barWidth);
    const auto place = std::clamp<std::ptrdiff_t>(present - Widths + steps, 0, std::size(Widths) - 1);
    setBarWidth(Widths[place]);
    emit zoomed(m_barWidth);
}

void FrameBars::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        choose(frameAt(event->x()));
}

void FrameBars::mouseMoveEvent(QMouseEvent* event)
{
    const int frame = frameAt(event->x());
    m_pointed = frame < 0 ? 0 : m_store.getFirst() + static_cast<std::uint64_t>(frame) + 1;
    update();
    emit cursorMoved();
}

void FrameBars::leaveEvent(QEvent* /*event*/)
{
    m_pointed = 0;
    update();
    emit cursorMoved();
}

void FrameBars::wheelEvent(QWheelEvent* event)
{
    const int notches = event->angleDelta().y() / 120;
    if (event->modifiers() & Qt::ControlModifier)
        zoom(notches);
    else
        scroll(-notches * std::max(1, numSeen() / 8));
}

void FrameBars::keyPressEvent(QKeyEvent* event)
{
    const int step = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    const int present = getChosen() < 0 ? getEndSeen() : getChosen();
    const auto go = [this](int frame) { choose(std::clamp(frame, 0, std::max(0, numFrames() - 1))); };
    switch (event->key()) {
    case Qt::Key_Left:
        return go(present - step);
    case Qt::Key_Right:
        return go(present + step);
    case Qt::Key_Home:
        return go(0);
    case Qt::Key_End:
        return go(numFrames() - 1);
    case Qt::Key_PageUp:
        return scroll(-numSeen());
    case Qt::Key_PageDown:
        return scroll(numSeen());
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(1);
    case Qt::Key_Minus:
        return zoom(-1);
    case Qt::Key_Space:
        return emit pauseRequested(!m_isPaused);
    case Qt::Key_Escape:
        return choose(-1);
    default:
        QWidget::keyPressEvent(event);
    }
}

void FrameBars::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    update();
}

double FrameBars::yOf(double milliseconds) const
{
    const QRect area = plot();
    return area.bottom() + 1 - milliseconds / getScale() * area.height();
}

void FrameBars::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    if (numFrames() == 0) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect().adjusted(Margin, 0, -Margin, 0), Qt::AlignCenter | Qt::TextWordWrap,
                         tr("Each frame that is drawn comes here as a bar: turn the view."));
        return;
    }
    paintBars(painter);
    paintMarks(painter);
    paintBudget(painter);
    painter.setRenderHint(QPainter::Antialiasing);
    paintCurves(painter);
    paintCursor(painter);
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void FrameBars::paintBars(QPainter& painter) const
{
    const SoFrameRecording& frames = m_store.getFrames();
    const std::vector<const SoFrameColumn*> phases = phasesOf(frames);
    const SoFrameColumn* gpu = frames.findColumn(SoFrame::getName(SoFrame::Gpu));
    const double perNanosecond = plot().height() / (getScale() * 1e6);
    const int gap = m_barWidth > 2 ? 1 : 0;
    for (int frame = getFirstSeen(); frame < getEndSeen(); ++frame) {
        const QRect bar = getBar(frame).adjusted(0, 0, -gap, 0);
        const auto place = static_cast<std::size_t>(frame);
        double y = bar.bottom() + 1;
        for (int phase = 0; phase < SoFrame::NumPhases; ++phase) {
            const SoFrameColumn* column = phases[static_cast<std::size_t>(phase)];
            const double height = column && column->isKnown(column->values[place])
                                      ? static_cast<double>(column->values[place]) * perNanosecond
                                      : 0;
            painter.fillRect(QRectF(bar.left(), y - height, bar.width(), height),
                             FrameColors::ofPhase(phase, palette()));
            y -= height;
        }
        if (gpu && gpu->isKnown(gpu->values[place])) {
            const double top = bar.bottom() + 1 - static_cast<double>(gpu->values[place]) * perNanosecond;
            painter.fillRect(QRectF(bar.left(), top, bar.width(), 1.5), palette().color(QPalette::Text));
        }
    }
}

void FrameBars::paintBudget(QPainter& painter) const
{
    const int y = static_cast<int>(yOf(m_budget));
    painter.setPen(QPen(FrameColors::ofBudget(palette()), 1, Qt::DashLine));
    painter.drawLine(plot().left(), y, plot().right(), y);
    painter.drawText(plot().left() + 2, y - 2, readable(m_budget, QStringLiteral("ms")));
}

void FrameBars::paintMarks(QPainter& painter) const
{
    const SoFrameColumn* begin = m_store.getFrames().findColumn(SoFrame::getName(SoFrame::Begin));
    if (!begin)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(FrameColors::ofMark(palette()));
    for (const SoFrameMark& mark : m_store.getFrames().marks) {
        const auto next = std::lower_bound(begin->values.begin(), begin->values.end(), mark.time);
        const int frame = static_cast<int>(next - begin->values.begin());
        if (frame < getFirstSeen() || frame >= getEndSeen())
            continue;
        const int x = getBar(frame).center().x();
        painter.drawPolygon(QPolygon({{x - 4, 1}, {x + 4, 1}, {x, MarkHeight}}));
    }
}

void FrameBars::paintCurves(QPainter& painter) const
{
    if (!m_curves)
        return;
    int axis = 0;
    for (const FrameCurve& curve : *m_curves) {
        paintCurve(painter, curve, FrameColors::ofCurve(axis, palette()), axis);
        ++axis;
    }
}

void FrameBars::paintCurve(QPainter& painter, const FrameCurve& curve, const QColor& color, int axis) const
{
    const int end = std::min(getEndSeen(), static_cast<int>(curve.getValues().size()));
    double low = 0;
    double high = 0;
    for (int frame = getFirstSeen(); frame < end; ++frame) {
        const double value = curve.getValues()[static_cast<std::size_t>(frame)];
        if (std::isfinite(value)) {
            low = std::min(low, value);
            high = std::max(high, value);
        }
    }
    const double range = high > low ? (high - low) * Headroom : 1;
    const QRect area = plot();
    QPainterPath path;
    bool isOn = false;
    for (int frame = getFirstSeen(); frame < end; ++frame) {
        const double value = curve.getValues()[static_cast<std::size_t>(frame)];
        const QPointF point(getBar(frame).left() + m_barWidth / 2.0,
                            area.bottom() - (value - low) / range * area.height());
        if (!std::isfinite(value))
            isOn = false;
        else if (std::exchange(isOn, true))
            path.lineTo(point);
        else
            path.moveTo(point);
    }
    painter.setBrush(Qt::NoBrush);
    QPen pen(color, 1);
    pen.setCosmetic(true); // thicker lines take ten times as long
    painter.setPen(pen);
    painter.drawPath(path);
    const int x = area.right() + 4 + axis * AxisWidth;
    painter.drawLine(x, area.top(), x, area.bottom());
    const QRect labels(x + 3, area.top(), AxisWidth - 6, area.height());
    painter.drawText(labels, Qt::AlignTop, readable(low + range, curve.unit));
    painter.drawText(labels, Qt::AlignBottom, readable(low, curve.unit));
}

void FrameBars::paintCursor(QPainter& painter) const
{
    const int chosen = getChosen();
    if (chosen >= getFirstSeen() && chosen < getEndSeen()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(getBar(chosen).adjusted(-1, -1, 0, 0));
    }
    const int cursor = getCursor();
    if (cursor >= 0 && cursor != chosen) {
        painter.setPen(QPen(palette().color(QPalette::Text), 1, Qt::DotLine));
        const int x = getBar(cursor).center().x();
        painter.drawLine(x, plot().top(), x, plot().bottom());
    }
}

} // namespace profiler
