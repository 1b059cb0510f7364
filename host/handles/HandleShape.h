// SPDX-License-Identifier: MIT
#pragma once

#include "handles/HandleTarget.h"

#include <QPolygonF>

#include <optional>
#include <vector>

class QPainter;
class QPalette;

namespace scopix
{

class ViewSight;

/// A handle, by what it changes: one axis, the plane across one, all that the picture's plane allows, or (for
/// turning) around the line of sight.
enum class HandlePart { None, X, Y, Z, AcrossX, AcrossY, AcrossZ, Free, View };

/// 0 to 2; -1 for a part that has no axis.
int axisOf(HandlePart part);
bool isAcross(HandlePart part);

/// The handles of a target as they are on the screen at one moment: as large whatever the distance, and
/// without those that point to the eye too steeply to be used. Sizes are in the widget's pixels.
class HandleShape
{
public:
    static constexpr double AxisLength = 84;
    static constexpr double RingRadius = 72;
    static constexpr double ViewRadius = 92;

    HandleShape() = default;
    HandleShape(const HandleTarget& target, HandleMode mode, bool ofWorld, const ViewSight& sight);

    bool isEmpty() const { return m_pieces.empty(); }
    HandlePart partAt(const QPointF& place) const;
    bool has(HandlePart part) const;
    /// A place where the part can be taken hold of; nothing where it is not there.
    std::optional<QPointF> placeOf(HandlePart part) const;
    const QPointF& getCenter() const { return m_center; }

    /// `marked` is drawn so that it catches the eye, and while it is `held`, the others are left out.
    void paint(QPainter& painter, HandlePart marked, bool isHeld) const;

private:
    enum class Tip { None, Arrow, Square };
    struct Piece {
        HandlePart part;
        QPolygonF line;
        Tip tip = Tip::None;
        bool isFilled = false;
        bool isBehind = false; // the far side of a ring: seen, and not to be taken hold of
        double depth = 0;      // the higher, the nearer
    };
    struct Build;
    void addAxis(const Build& build, int axis, Tip tip);
    void addSquare(const Build& build, int across);
    void addRing(const Build& build, int axis);
    void addCircle(HandlePart part, double radius, bool isFilled);
    static void paintPiece(QPainter& painter, const Piece& piece, bool isMarked);

    QPointF m_center;
    std::vector<Piece> m_pieces; // the farthest first
};

} // namespace scopix
