// SPDX-License-Identifier: MIT
#pragma once

#include "handles/HandleShape.h"
#include "viewport/ViewSight.h"

#include <array>

namespace scopix
{

/// The part that stands for this one where a target has fewer of them.
HandlePart usablePart(const HandleTarget& target, HandleMode mode, HandlePart part);

/// How much a handle is moved, by the mouse or by numbers, and what that makes of its target: lengths in the
/// world's units, angles in degrees, factors.
class HandleDrag
{
public:
    /// A part that changes two things has two amounts.
    using Amounts = std::array<double, 2>;

    /// The target must outlive it. `start`: where the mouse takes hold.
    HandleDrag(HandleTarget& target, HandleMode mode, HandlePart part, bool ofWorld, const ViewSight& sight,
               const QPointF& start);

    HandlePart getPart() const { return m_part; }
    bool isOfWorld() const { return m_ofWorld; }
    /// 1 or 2.
    int getCount() const;
    /// The amounts of no change.
    double getNothing() const { return m_mode == HandleMode::Scale ? 1 : 0; }
    Amounts getAmounts(const QPointF& place, bool snaps) const;
    /// By this, amounts snap.
    double getStep() const;
    void apply(const Amounts& amounts) const;

private:
    Amounts moveTo(const QPointF& place) const;
    Amounts turnTo(const QPointF& place) const;
    Amounts scaleTo(const QPointF& place) const;
    HandleAxis axis(int i) const { return m_axes[static_cast<std::size_t>(i)]; }
    double alongAxis(const SbVec3f& axis, const QPointF& place) const;
    std::optional<SbVec3f> onPlane(const SbVec3f& normal, const QPointF& place) const;
    std::optional<double> angleOnPlane(const QPointF& place) const;
    double angleAlongTangent(const QPointF& place) const;
    HandleAxis turnAxis() const;
    SbVec3f localStep(const HandleAxis& along, double by) const;
    void applyMove(const Amounts& amounts) const;
    void applyTurn(const Amounts& amounts) const;
    void applyScale(const Amounts& amounts) const;

    HandleTarget& m_target;
    HandleMode m_mode;
    HandlePart m_part;
    bool m_ofWorld;
    ViewSight m_sight;
    QPointF m_start;
    QPointF m_center;
    SbVec3f m_place;
    SbVec3f m_pivot; // in the target's coordinates
    SbVec3f m_toEye;
    float m_pixel;
    HandleAxes m_axes;
};

} // namespace scopix
