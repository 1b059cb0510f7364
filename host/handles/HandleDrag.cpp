// SPDX-License-Identifier: MIT
#include "handles/HandleDrag.h"

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr double Pi = 3.14159265358979;
constexpr double TurnStep = 15; // degrees
constexpr double ScaleStep = 0.1;
constexpr double RepeatStep = 0.1; // of a texture's picture
// Degrees for a pixel, where it turns freely.
constexpr double FreeTurn = 0.5;
// Between a line of sight and a plane: flatter than this, no place is told on the plane.
constexpr float Steepness = 0.12F;

float number(double value)
{
    return static_cast<float>(value);
}

// 1, 2 or 5 times a power of ten, not below the value.
double niceAbove(double value)
{
    if (!(value > 0) || !std::isfinite(value))
        return 1;
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= value)
            return factor * power;
    }
    return 10 * power;
}

double cross2(const QPointF& a, const QPointF& b)
{
    return a.x() * b.y() - a.y() * b.x();
}

} // namespace

HandlePart usablePart(const HandleTarget& target, HandleMode mode, HandlePart part)
{
    if (target.isOneDimensional(mode))
        return mode == HandleMode::Move   ? HandlePart::Z
               : mode == HandleMode::Turn ? HandlePart::View
                                          : HandlePart::Free;
    return target.isFlat() && part != HandlePart::X && part != HandlePart::Y ? HandlePart::Free : part;
}

HandleDrag::HandleDrag(HandleTarget& target, HandleMode mode, HandlePart part, bool ofWorld,
                       const ViewSight& sight, const QPointF& start)
    : m_target(target)
    , m_mode(mode)
    , m_part(usablePart(target, mode, part))
    , m_ofWorld(ofWorld && target.canBeOfWorld(mode))
    , m_sight(sight)
    , m_start(start)
    , m_place(target.getPlace())
    , m_pivot(target.getPivot())
    , m_toEye(sight.toEye(m_place))
    , m_pixel(sight.getPixelLength(m_place))
    , m_axes(target.getAxes(m_ofWorld))
{
    m_center = sight.toScreen(m_place).value_or(QPointF());
    target.begin();
}

int HandleDrag::getCount() const
{
    if (m_mode == HandleMode::Scale)
        return isAcross(m_part) ? 2 : 1;
    return isAcross(m_part) || m_part == HandlePart::Free ? 2 : 1;
}

double HandleDrag::getStep() const
{
    if (m_mode == HandleMode::Turn)
        return TurnStep;
    if (m_mode == HandleMode::Scale)
        return ScaleStep;
    return m_target.isFlat() ? RepeatStep : niceAbove(10 * static_cast<double>(m_pixel));
}

HandleDrag::Amounts HandleDrag::getAmounts(const QPointF& place, bool snaps) const
{
    Amounts amounts = m_mode == HandleMode::Move   ? moveTo(place)
                      : m_mode == HandleMode::Turn ? turnTo(place)
                                                   : scaleTo(place);
    for (double& amount : amounts) {
        if (!std::isfinite(amount))
            amount = getNothing();
        if (snaps)
            amount = std::round(amount / getStep()) * getStep();
    }
    return amounts;
}

// Of the place on the axis that is the nearest to the line of sight.
double HandleDrag::alongAxis(const SbVec3f& axis, const QPointF& place) const
{
    const SbRay ray = m_sight.getRay(place);
    const SbVec3f toRay = ray.origin - m_place;
    const double across = static_cast<double>(axis.dot(ray.direction));
    const double spread = 1 - across * across;
    if (spread < 1e-4)
        return 0;
    return (static_cast<double>(toRay.dot(axis)) - across * static_cast<double>(toRay.dot(ray.direction))) /
           spread;
}

std::optional<SbVec3f> HandleDrag::onPlane(const SbVec3f& normal, const QPointF& place) const
{
    const SbRay ray = m_sight.getRay(place);
    const float slope = normal.dot(ray.direction);
    if (std::abs(slope) < 0.02F)
        return std::nullopt;
    return ray.at(normal.dot(m_place - ray.origin) / slope);
}

HandleDrag::Amounts HandleDrag::moveTo(const QPointF& place) const
{
    if (m_target.isFlat()) {
        const QPointF by = (place - m_start) / HandleShape::AxisLength;
        return m_part == HandlePart::X   ? Amounts{by.x(), 0}
               : m_part == HandlePart::Y ? Amounts{-by.y(), 0}
                                         : Amounts{by.x(), -by.y()};
    }
    if (m_part == HandlePart::Free) {
        const auto from = onPlane(m_toEye, m_start);
        const auto to = onPlane(m_toEye, place);
        if (!from || !to)
            return {};
        const SbVec3f by = *to - *from;
        return {static_cast<double>(by.dot(m_sight.getRight())),
                static_cast<double>(by.dot(m_sight.getUp()))};
    }
    const int i = axisOf(m_part);
    if (!isAcross(m_part))
        return {alongAxis(axis(i).world, place) - alongAxis(axis(i).world, m_start), 0};
    const SbVec3f one = axis((i + 1) % 3).world;
    const SbVec3f other = axis((i + 2) % 3).world;
    const SbVec3f normal = cross(one, other).normalized();
    const auto from = onPlane(normal, m_start);
    const auto to = onPlane(normal, place);
    if (!from || !to)
        return {};
    // The axes may be skew.
    const SbVec3f by = *to - *from;
    const float skew = one.dot(other);
    const float a = by.dot(one);
    const float b = by.dot(other);
    const float spread = 1 - skew * skew;
    return {static_cast<double>((a - skew * b) / spread), static_cast<double>((b - skew * a) / spread)};
}

HandleAxis HandleDrag::turnAxis() const
{
    if (m_target.isFlat())
        return {{0, 0, 1}, m_sight.getBack()};
    HandleAxis around = m_part == HandlePart::View ? m_target.axisTo(m_toEye) : axis(axisOf(m_part));
    // In mirrored space a turn looks like one the other way.
    if ((m_ofWorld || m_part == HandlePart::View) && m_target.isMirrored())
        around.local = around.local * -1.0F;
    return around;
}

// In the coordinates that it turns in, so that what is under the mouse stays there however they are
// stretched.
std::optional<double> HandleDrag::angleOnPlane(const QPointF& place) const
{
    const auto back = m_target.toWorld().inverse();
    if (!back || m_target.isFlat())
        return std::nullopt;
    const SbVec3f around = turnAxis().local;
    const SbRotation turned = SbRotation::between({0, 0, 1}, around);
    SbVec3f at[2];
    for (const bool isStart : {true, false}) {
        const SbRay ray = m_sight.getRay(isStart ? m_start : place);
        const SbVec3f origin = back->multPoint(ray.origin);
        const SbVec3f direction = back->multDirection(ray.direction).normalized();
        const float slope = around.dot(direction);
        if (std::abs(slope) < Steepness)
            return std::nullopt;
        const float distance = around.dot(m_pivot - origin) / slope;
        at[isStart ? 0 : 1] = turned.inverse().multVec(origin + direction * distance - m_pivot);
    }
    return std::atan2(static_cast<double>(at[0][0] * at[1][1] - at[0][1] * at[1][0]),
                      static_cast<double>(at[0][0] * at[1][0] + at[0][1] * at[1][1]));
}

// Where the ring is seen from its edge: as far as the mouse goes along it.
double HandleDrag::angleAlongTangent(const QPointF& place) const
{
    const SbVec3f around = turnAxis().world;
    const SbVec3f tangent = cross(around, m_toEye) * m_pixel;
    const auto ahead = m_sight.toScreen(m_place + tangent);
    if (!ahead)
        return 0;
    const QPointF along = *ahead - m_center;
    const double length = std::hypot(along.x(), along.y());
    return length > 1e-3 ? QPointF::dotProduct(place - m_start, along) / length / HandleShape::RingRadius : 0;
}

HandleDrag::Amounts HandleDrag::turnTo(const QPointF& place) const
{
    const QPointF by = place - m_start;
    if (m_part == HandlePart::Free)
        return {by.x() * FreeTurn, by.y() * FreeTurn};
    double angle = 0;
    if (m_part == HandlePart::View) {
        const QPointF from = m_start - m_center;
        const QPointF to = place - m_center;
        angle = -std::atan2(cross2(from, to), QPointF::dotProduct(from, to));
    } else if (const auto onIt = angleOnPlane(place)) {
        angle = *onIt;
    } else {
        angle = angleAlongTangent(place);
    }
    return {angle * 180 / Pi, 0};
}

HandleDrag::Amounts HandleDrag::scaleTo(const QPointF& place) const
{
    const QPointF by = place - m_start;
    double factor = 1;
    if (m_part == HandlePart::Free) {
        factor = 1 + (by.x() - by.y()) / HandleShape::AxisLength;
    } else if (isAcross(m_part)) {
        const double from = std::hypot((m_start - m_center).x(), (m_start - m_center).y());
        const QPointF out = (m_start - m_center) / std::max(1.0, from);
        factor = 1 + QPointF::dotProduct(by, out) / std::max(20.0, from);
    } else {
        QPointF along;
        if (m_target.isFlat()) {
            along = m_part == HandlePart::X ? QPointF(1, 0) : QPointF(0, -1);
        } else {
            const SbVec3f end = m_place + axis(axisOf(m_part)).world * (100 * m_pixel);
            along = m_sight.toScreen(end).value_or(m_center) - m_center;
        }
        const double length = std::hypot(along.x(), along.y());
        along = length > 1e-3 ? along / length : QPointF();
        const double from = QPointF::dotProduct(m_start - m_center, along);
        factor = 1 + QPointF::dotProduct(by, along) / (std::abs(from) > 20 ? std::abs(from) : 20);
    }
    return {factor, factor};
}

SbVec3f HandleDrag::localStep(const HandleAxis& along, double by) const
{
    if (m_ofWorld)
        return m_target.toLocal(along.world) * number(by);
    const float stretch = m_target.toWorld().multDirection(along.local).length();
    return stretch > 0 ? along.local * (number(by) / stretch) : SbVec3f();
}

void HandleDrag::apply(const Amounts& amounts) const
{
    if (m_mode == HandleMode::Move)
        applyMove(amounts);
    else if (m_mode == HandleMode::Turn)
        applyTurn(amounts);
    else
        applyScale(amounts);
}

void HandleDrag::applyMove(const Amounts& amounts) const
{
    const int i = axisOf(m_part);
    if (m_target.isFlat()) {
        SbVec3f by(number(amounts[0]), number(amounts[1]), 0);
        if (m_part != HandlePart::Free)
            by = i == 0 ? SbVec3f(by[0], 0, 0) : SbVec3f(0, by[0], 0);
        m_target.move(by);
    } else if (m_part == HandlePart::Free) {
        m_target.move(
            m_target.toLocal(m_sight.getRight() * number(amounts[0]) + m_sight.getUp() * number(amounts[1])));
    } else if (isAcross(m_part)) {
        m_target.move(localStep(axis((i + 1) % 3), amounts[0]) + localStep(axis((i + 2) % 3), amounts[1]));
    } else {
        m_target.move(localStep(axis(i), amounts[0]));
    }
}

void HandleDrag::applyTurn(const Amounts& amounts) const
{
    const auto by = [](const SbVec3f& around, double degrees) {
        return degrees == 0 ? SbRotation() : SbRotation(around, number(degrees * Pi / 180));
    };
    if (m_part != HandlePart::Free) {
        m_target.turn(by(turnAxis().local, amounts[0]));
        return;
    }
    const float sense = m_target.isMirrored() ? -1.0F : 1.0F;
    m_target.turn(by(m_target.axisTo(m_sight.getRight()).local * sense, amounts[1]) *
                  by(m_target.axisTo(m_sight.getUp()).local * sense, amounts[0]));
}

void HandleDrag::applyScale(const Amounts& amounts) const
{
    const int i = axisOf(m_part);
    SbVec3f factors(1, 1, 1);
    for (int k = 0; k < 3; ++k) {
        if (m_part == HandlePart::Free || (i == k) != isAcross(m_part))
            factors[k] = number(amounts[0]);
    }
    if (isAcross(m_part))
        factors[(i + 2) % 3] = number(amounts[1]);
    m_target.scale(factors);
}

} // namespace scopix
