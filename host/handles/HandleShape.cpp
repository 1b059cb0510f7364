// SPDX-License-Identifier: MIT
#include "handles/HandleShape.h"

#include "viewport/ViewSight.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace scopix
{

namespace
{

constexpr double Reach = 7;           // of the mouse, around a line
constexpr double CenterRadius = 9;    // what moves freely
constexpr double SquareFrom = 22;     // of an axis, where the square of a plane begins
constexpr double SquareTo = 40;       // and ends
constexpr double ShortestAxis = 14;   // on the screen
constexpr double SmallestSquare = 60; // its area
constexpr int RingSteps = 64;
constexpr double Pi = 3.14159265358979;
constexpr QRgb Colors[] = {0xffe5484d, 0xff46a758, 0xff3e8bf2};
constexpr QRgb FreeColor = 0xffd8dde3;
constexpr QRgb MarkedColor = 0xffffc53d;

QColor colorOf(HandlePart part)
{
    const int axis = axisOf(part);
    return QColor(axis < 0 ? FreeColor : Colors[axis]);
}

double distanceTo(const QPolygonF& line, const QPointF& place)
{
    double least = 1e9;
    for (int i = 0; i + 1 < line.size(); ++i) {
        const QPointF along = line[i + 1] - line[i];
        const double square = QPointF::dotProduct(along, along);
        const double part =
            square > 0 ? std::clamp(QPointF::dotProduct(place - line[i], along) / square, 0.0, 1.0) : 0;
        least = std::min(least, QLineF(place, line[i] + along * part).length());
    }
    return least;
}

double areaOf(const QPolygonF& polygon)
{
    double area = 0;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF& a = polygon[i];
        const QPointF& b = polygon[(i + 1) % polygon.size()];
        area += a.x() * b.y() - b.x() * a.y();
    }
    return std::abs(area) / 2;
}

} // namespace

int axisOf(HandlePart part)
{
    switch (part) {
    case HandlePart::X:
    case HandlePart::AcrossX:
        return 0;
    case HandlePart::Y:
    case HandlePart::AcrossY:
        return 1;
    case HandlePart::Z:
    case HandlePart::AcrossZ:
        return 2;
    default:
        return -1;
    }
}

bool isAcross(HandlePart part)
{
    return part == HandlePart::AcrossX || part == HandlePart::AcrossY || part == HandlePart::AcrossZ;
}

struct HandleShape::Build {
    const HandleTarget& target;
    const ViewSight& sight;
    HandleAxes axes;
    SbVec3f place;
    float pixel;

    // Along the axes, by pixels.
    std::optional<QPointF> toScreen(const SbVec3f& direction, double pixels) const
    {
        return sight.toScreen(place + direction * (static_cast<float>(pixels) * pixel));
    }
    double depth(const SbVec3f& direction) const
    {
        return static_cast<double>(direction.dot(sight.toEye(place)));
    }
};

HandleShape::HandleShape(const HandleTarget& target, HandleMode mode, bool ofWorld, const ViewSight& sight)
{
    const SbVec3f place = target.getPlace();
    const auto center = sight.toScreen(place);
    if (!center || !target.can(mode))
        return;
    m_center = *center;
    Build build{target, sight, target.getAxes(ofWorld && target.canBeOfWorld(mode)), place,
                sight.getPixelLength(place)};
    if (target.isFlat()) {
        const SbVec3f sides[] = {sight.getRight(), sight.getUp(), sight.getBack()};
        for (int i = 0; i < 3; ++i)
            build.axes[static_cast<std::size_t>(i)] = {sides[i], i == 2 ? SbVec3f() : sides[i]};
    }
    const bool isSingle = target.isOneDimensional(mode);
    if (mode == HandleMode::Turn) {
        for (int axis = 0; axis < 3 && !isSingle; ++axis)
            addRing(build, axis);
        addCircle(HandlePart::View, ViewRadius, false);
        if (!isSingle)
            addCircle(HandlePart::Free, CenterRadius, true);
    } else {
        const bool isMove = mode == HandleMode::Move;
        for (int axis = isSingle ? 2 : 0; axis < 3 && (isMove || !isSingle); ++axis)
            addAxis(build, axis, isMove ? Tip::Arrow : Tip::Square);
        for (int axis = 0; axis < 3 && !isSingle && !target.isFlat(); ++axis)
            addSquare(build, axis);
        if (!isSingle || !isMove)
            addCircle(HandlePart::Free, CenterRadius, true);
    }
    std::stable_sort(m_pieces.begin(), m_pieces.end(),
                     [](const Piece& a, const Piece& b) { return a.depth < b.depth; });
}

void HandleShape::addAxis(const Build& build, int axis, Tip tip)
{
    const HandleAxis& along = build.axes[static_cast<std::size_t>(axis)];
    const auto end = along.isUsable() ? build.toScreen(along.world, AxisLength) : std::nullopt;
    if (!end || QLineF(m_center, *end).length() < ShortestAxis)
        return;
    const QPointF start = m_center + (*end - m_center) * (CenterRadius / AxisLength);
    m_pieces.push_back({HandlePart(int(HandlePart::X) + axis), QPolygonF(QVector<QPointF>{start, *end}), tip,
                        false, false, build.depth(along.world)});
}

void HandleShape::addSquare(const Build& build, int across)
{
    const HandleAxis& one = build.axes[static_cast<std::size_t>((across + 1) % 3)];
    const HandleAxis& other = build.axes[static_cast<std::size_t>((across + 2) % 3)];
    if (!one.isUsable() || !other.isUsable())
        return;
    QPolygonF square;
    for (const auto& [a, b] : {std::pair(SquareFrom, SquareFrom), std::pair(SquareTo, SquareFrom),
                               std::pair(SquareTo, SquareTo), std::pair(SquareFrom, SquareTo)}) {
        const auto corner =
            build.toScreen(one.world * static_cast<float>(a) + other.world * static_cast<float>(b), 1);
        if (!corner)
            return;
        square << *corner;
    }
    if (areaOf(square) < SmallestSquare)
        return;
    m_pieces.push_back({HandlePart(int(HandlePart::AcrossX) + across), square, Tip::None, true, false,
                        build.depth(one.world + other.world) / 2});
}

// As a circle in the coordinates that it turns in: where these are stretched, it is an ellipse.
void HandleShape::addRing(const Build& build, int axis)
{
    const HandleAxis& around = build.axes[static_cast<std::size_t>(axis)];
    if (!(around.local.length() > 0))
        return;
    const SbRotation turned = SbRotation::between({0, 0, 1}, around.local);
    std::vector<SbVec3f> points;
    float longest = 0;
    for (int i = 0; i <= RingSteps; ++i) {
        const double angle = 2 * Pi * i / RingSteps;
        const SbVec3f local =
            turned.multVec({static_cast<float>(std::cos(angle)), static_cast<float>(std::sin(angle)), 0});
        points.push_back(build.target.toWorld().multDirection(local));
        longest = std::max(longest, points.back().length());
    }
    if (!(longest > 0))
        return;
    const HandlePart part = HandlePart(int(HandlePart::X) + axis);
    // One line for as long as it is on the same side.
    for (int i = 0; i < RingSteps; ++i) {
        const SbVec3f& from = points[static_cast<std::size_t>(i)];
        const SbVec3f& to = points[static_cast<std::size_t>(i) + 1];
        const auto a = build.toScreen(from * (1 / longest), RingRadius);
        const auto b = build.toScreen(to * (1 / longest), RingRadius);
        const bool isBehind = build.depth((from + to) * (0.5F / longest)) < -0.02;
        if (!a || !b)
            continue;
        Piece* const last = m_pieces.empty() ? nullptr : &m_pieces.back();
        if (last && last->part == part && last->isBehind == isBehind && last->line.last() == *a)
            last->line << *b;
        else
            m_pieces.push_back({part, QPolygonF(QVector<QPointF>{*a, *b}), Tip::None, false, isBehind,
                                isBehind ? -1.0 : 1.0});
    }
}

void HandleShape::addCircle(HandlePart part, double radius, bool isFilled)
{
    QPolygonF circle;
    for (int i = 0; i <= RingSteps; ++i) {
        const double angle = 2 * Pi * i / RingSteps;
        circle << m_center + QPointF(std::cos(angle), std::sin(angle)) * radius;
    }
    m_pieces.push_back({part, circle, Tip::None, isFilled, false, isFilled ? 2.0 : -2.0});
}

HandlePart HandleShape::partAt(const QPointF& place) const
{
    HandlePart best = HandlePart::None;
    double least = Reach;
    for (auto piece = m_pieces.rbegin(); piece != m_pieces.rend(); ++piece) {
        if (piece->isBehind)
            continue;
        const bool isWithin = piece->isFilled && piece->line.containsPoint(place, Qt::OddEvenFill);
        const double distance = isWithin ? 0 : distanceTo(piece->line, place);
        if (distance < least) {
            least = distance;
            best = piece->part;
        }
    }
    return best;
}

bool HandleShape::has(HandlePart part) const
{
    return std::any_of(m_pieces.begin(), m_pieces.end(),
                       [part](const Piece& piece) { return piece.part == part; });
}

std::optional<QPointF> HandleShape::placeOf(HandlePart part) const
{
    for (auto piece = m_pieces.rbegin(); piece != m_pieces.rend(); ++piece) {
        if (piece->part != part || piece->isBehind)
            continue;
        if (piece->isFilled)
            return piece->line.boundingRect().center();
        for (int i = 0; i + 1 < piece->line.size(); ++i) {
            const QPointF place = (piece->line[i] + 3 * piece->line[i + 1]) / 4;
            if (partAt(place) == part)
                return place;
        }
    }
    return std::nullopt;
}

void HandleShape::paint(QPainter& painter, HandlePart marked, bool isHeld) const
{
    for (const Piece& piece : m_pieces) {
        if (!isHeld || piece.part == marked)
            paintPiece(painter, piece, piece.part == marked);
    }
}

void HandleShape::paintPiece(QPainter& painter, const Piece& piece, bool isMarked)
{
    QColor color = isMarked ? QColor(MarkedColor) : colorOf(piece.part);
    if (piece.isBehind)
        color.setAlphaF(0.3);
    else if (piece.part == HandlePart::View && !isMarked)
        color.setAlphaF(0.6);
    QColor fill = color;
    fill.setAlphaF(0.35);
    // A dark rim sets it off from every ground.
    for (const bool isRim : {true, false}) {
        if (isRim && piece.isBehind)
            continue;
        const QColor drawn = isRim ? QColor(0, 0, 0, 110) : color;
        painter.setPen(QPen(drawn, isRim ? 4.5 : isMarked ? 3 : 2.2, Qt::SolidLine, Qt::RoundCap));
        painter.setBrush(piece.isFilled && !isRim ? QBrush(fill) : QBrush(Qt::NoBrush));
        if (piece.isFilled)
            painter.drawPolygon(piece.line);
        else
            painter.drawPolyline(piece.line);
    }
    if (piece.tip == Tip::None)
        return;
    painter.setPen(QPen(QColor(0, 0, 0, 110), 1));
    painter.setBrush(color);
    const QPointF end = piece.line.last();
    if (piece.tip == Tip::Square) {
        painter.drawRect(QRectF(end - QPointF(5, 5), QSizeF(10, 10)));
        return;
    }
    const QPointF along = end - piece.line.first();
    const double length = std::max(1.0, std::hypot(along.x(), along.y()));
    const QPointF ahead = along / length;
    const QPointF side(-ahead.y(), ahead.x());
    painter.drawPolygon(
        QPolygonF({end + ahead * 8, end - ahead * 6 + side * 5.5, end - ahead * 6 - side * 5.5}));
}

} // namespace scopix
