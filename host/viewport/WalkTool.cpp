// SPDX-License-Identifier: MIT
#include "viewport/WalkTool.h"

#include "viewport/SceneView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr int TickMs = 16;
constexpr float FirstStep = 1.0F / 30; // seconds that a key counts at once
constexpr float LongestStep = 0.1F;    // where a picture takes long
constexpr float SceneSeconds = 8;      // to walk through all of the scene
constexpr float Faster = 4;            // with Shift
constexpr float PaceStep = 1.25F;      // per notch of the wheel
constexpr float LookPerPixel = 0.004F; // radians

// To the right, up and ahead.
SbVec3f directionOf(int key)
{
    switch (key) {
    case Qt::Key_W:
    case Qt::Key_Up:
        return {0, 0, 1};
    case Qt::Key_S:
    case Qt::Key_Down:
        return {0, 0, -1};
    case Qt::Key_A:
    case Qt::Key_Left:
        return {-1, 0, 0};
    case Qt::Key_D:
    case Qt::Key_Right:
        return {1, 0, 0};
    case Qt::Key_PageUp:
        return {0, 1, 0};
    case Qt::Key_PageDown:
        return {0, -1, 0};
    default:
        return {};
    }
}

} // namespace

WalkTool::WalkTool(SceneView& view)
    : m_view(view)
{
}

void WalkTool::setOn(bool on)
{
    if (on == m_isOn)
        return;
    m_isOn = on;
    stopGoing();
    m_isLooking = false;
    if (on) {
        m_view.setParallel(false); // where nothing comes nearer
        m_view.setFocus();
    }
    m_view.repaintTools();
    emit toggled(on);
}

bool WalkTool::wantsKey(const QKeyEvent& event)
{
    const bool isPlain = !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    return m_isOn && isPlain && (event.key() == Qt::Key_Escape || directionOf(event.key()) != SbVec3f());
}

bool WalkTool::keyPressed(QKeyEvent& event)
{
    if (!wantsKey(event))
        return false;
    if (event.key() == Qt::Key_Escape) {
        setOn(false);
        return true;
    }
    m_isFast = event.modifiers() & Qt::ShiftModifier;
    if (event.isAutoRepeat())
        return true;
    m_held.insert(event.key());
    step(FirstStep);
    if (!m_ticks.isActive()) {
        m_sinceTick.start();
        m_ticks.start(TickMs, this);
    }
    return true;
}

bool WalkTool::keyReleased(QKeyEvent& event)
{
    if (event.isAutoRepeat())
        return m_isOn;
    const bool wasHeld = m_held.remove(event.key());
    if (m_held.isEmpty())
        stopGoing();
    return wasHeld;
}

void WalkTool::focusLost()
{
    stopGoing();
}

void WalkTool::stopGoing()
{
    m_held.clear();
    m_ticks.stop();
}

void WalkTool::timerEvent(QTimerEvent* /*event*/)
{
    step(std::min(LongestStep, static_cast<float>(m_sinceTick.restart()) / 1000));
}

void WalkTool::step(float seconds)
{
    SbVec3f direction;
    for (const int key : m_held)
        direction = direction + directionOf(key);
    const float size = m_view.getSceneSize();
    const float speed = (size > 0 ? size : 1) / SceneSeconds * m_pace * (m_isFast ? Faster : 1);
    const SbVec3f by = direction * (speed * seconds);
    m_view.walk(by[0], by[1], by[2]);
}

bool WalkTool::mousePressed(QMouseEvent& event)
{
    if (m_isOn && event.button() == Qt::LeftButton) {
        m_isLooking = true;
        m_last = event.localPos();
    }
    return m_isLooking;
}

bool WalkTool::mouseMoved(QMouseEvent& event)
{
    if (!m_isLooking)
        return false;
    const QPointF by = event.localPos() - m_last;
    m_last = event.localPos();
    m_view.look(static_cast<float>(by.x()) * LookPerPixel, static_cast<float>(-by.y()) * LookPerPixel);
    return true;
}

bool WalkTool::mouseReleased(QMouseEvent& event)
{
    if (event.button() == Qt::LeftButton)
        return std::exchange(m_isLooking, false);
    return m_isLooking;
}

bool WalkTool::mouseDoubleClicked(QMouseEvent& event)
{
    return mousePressed(event);
}

bool WalkTool::wheelTurned(QWheelEvent& event)
{
    if (!m_isOn)
        return false;
    const float notches = static_cast<float>(event.angleDelta().y()) / 120;
    m_pace = std::clamp(m_pace * std::pow(PaceStep, notches), 0.01F, 100.0F);
    return true;
}

void WalkTool::paint(QPainter& painter, const ViewSight& /*sight*/)
{
    if (!m_isOn)
        return;
    const QString text = tr("Walking: W A S D or arrows, drag to look around, Esc ends");
    QRectF label = painter.fontMetrics().boundingRect(text).adjusted(-10, -5, 10, 5);
    label.moveCenter(QPointF(m_view.width() / 2.0, 0));
    label.moveBottom(m_view.height() - 10.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 170));
    painter.drawRoundedRect(label, 4, 4);
    painter.setPen(Qt::white);
    painter.drawText(label, Qt::AlignCenter, text);
}

} // namespace scopix
