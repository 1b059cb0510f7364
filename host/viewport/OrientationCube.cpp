// SPDX-License-Identifier: MIT
#include "viewport/OrientationCube.h"

#include "viewport/SceneView.h"

#include <QApplication>
#include <QLineF>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace scopix
{

namespace
{

constexpr double Sheet = 60;    // on which a text is set, before it is laid on its face
constexpr double HalfSide = 26; // pixels
constexpr double Margin = 56;   // from the view's corner to the cube's middle
constexpr double Reach = 1.8;   // half sides: whatever the cube's turn, all of it is within
constexpr float Inner = 0.5F;   // of the half side: where the faces end and the edges begin
constexpr float LeastSeen = 0.05F;

// The sides with their text's directions to the right and up.
struct Side {
    SbVec3f out;
    SbVec3f right;
    SbVec3f up;
    const char* text;
};
const Side Sides[] = {
    {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}, QT_TRANSLATE_NOOP("OrientationCube", "Front")},
    {{0, 0, -1}, {-1, 0, 0}, {0, 1, 0}, QT_TRANSLATE_NOOP("OrientationCube", "Back")},
    {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}, QT_TRANSLATE_NOOP("OrientationCube", "Right")},
    {{-1, 0, 0}, {0, 0, 1}, {0, 1, 0}, QT_TRANSLATE_NOOP("OrientationCube", "Left")},
    {{0, 1, 0}, {1, 0, 0}, {0, 0, -1}, QT_TRANSLATE_NOOP("OrientationCube", "Top")},
    {{0, -1, 0}, {1, 0, 0}, {0, 0, 1}, QT_TRANSLATE_NOOP("OrientationCube", "Bottom")},
};

} // namespace

OrientationCube::OrientationCube(SceneView& view)
    : m_view(view)
{
}

void OrientationCube::setShown(bool on)
{
    m_isShown = on;
    m_view.repaintTools();
}

QPointF OrientationCube::getCenter() const
{
    return {m_view.width() - Margin, Margin};
}

std::vector<OrientationCube::Face> OrientationCube::makeFaces(const ViewSight& sight) const
{
    const QPointF center = getCenter();
    const auto place = [&](const SbVec3f& point) {
        return center + QPointF(static_cast<double>(point.dot(sight.getRight())),
                                -static_cast<double>(point.dot(sight.getUp()))) *
                            HalfSide;
    };
    std::vector<Face> faces;
    for (const Side& side : Sides) {
        const float towards = side.out.dot(sight.getBack());
        if (towards < LeastSeen)
            continue;
        const auto at = [&](float x, float y) { return place(side.out + side.right * x + side.up * y); };
        Face face{QCoreApplication::translate("OrientationCube", side.text),
                  QPolygonF(QVector<QPointF>{at(-1, 1), at(1, 1), at(1, -1), at(-1, -1)}),
                  towards,
                  {}};
        const float borders[] = {-1, -Inner, Inner, 1};
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j) {
                const float x[] = {borders[i], borders[i + 1]};
                const float y[] = {borders[j], borders[j + 1]};
                const auto out = [](int k) { return static_cast<float>(k - 1); };
                face.cells.push_back({side.out + side.right * out(i) + side.up * out(j),
                                      QPolygonF(QVector<QPointF>{at(x[0], y[0]), at(x[1], y[0]),
                                                                 at(x[1], y[1]), at(x[0], y[1])})});
            }
        }
        faces.push_back(face);
    }
    return faces;
}

std::optional<SbVec3f> OrientationCube::sideAt(const QPointF& place) const
{
    for (const Face& face : makeFaces(m_view.getSight())) {
        for (const Cell& cell : face.cells) {
            if (cell.outline.containsPoint(place, Qt::OddEvenFill))
                return cell.side;
        }
    }
    return std::nullopt;
}

std::optional<QPointF> OrientationCube::placeOf(const SbVec3f& side) const
{
    for (const Face& face : makeFaces(m_view.getSight())) {
        for (const Cell& cell : face.cells) {
            const QPointF middle = cell.outline.boundingRect().center();
            if (cell.side == side && sideAt(middle) == side)
                return middle;
        }
    }
    return std::nullopt;
}

bool OrientationCube::isAt(const QPointF& place) const
{
    return m_isShown && QLineF(place, getCenter()).length() < HalfSide * Reach;
}

bool OrientationCube::mousePressed(QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !isAt(event.localPos()))
        return m_isHeld;
    m_isHeld = true;
    m_hasMoved = false;
    m_pressed = m_last = event.localPos();
    return true;
}

bool OrientationCube::mouseMoved(QMouseEvent& event)
{
    if (!m_isHeld) {
        const bool isHere = event.buttons() == Qt::NoButton && isAt(event.localPos());
        hover(isHere ? sideAt(event.localPos()) : std::nullopt);
        return m_hovered.has_value();
    }
    if (!m_hasMoved && QLineF(event.localPos(), m_pressed).length() < QApplication::startDragDistance())
        return true;
    m_hasMoved = true;
    // The cube's surface stays under the mouse, about.
    const QPointF by = (event.localPos() - m_last) / (4 * HalfSide);
    m_last = event.localPos();
    m_view.turn(static_cast<float>(by.x()), static_cast<float>(-by.y()));
    return true;
}

bool OrientationCube::mouseReleased(QMouseEvent& event)
{
    if (!m_isHeld || event.button() != Qt::LeftButton)
        return m_isHeld;
    m_isHeld = false;
    const auto side = m_hasMoved ? std::nullopt : sideAt(event.localPos());
    if (side)
        m_view.lookFrom(*side);
    return true;
}

bool OrientationCube::mouseDoubleClicked(QMouseEvent& event)
{
    return mousePressed(event);
}

void OrientationCube::mouseLeft()
{
    hover(std::nullopt);
}

void OrientationCube::hover(const std::optional<SbVec3f>& side)
{
    if (side == m_hovered)
        return;
    m_hovered = side;
    m_view.repaintTools();
}

void OrientationCube::paint(QPainter& painter, const ViewSight& sight)
{
    if (!m_isShown)
        return;
    const QPalette& palette = m_view.palette();
    for (const Face& face : makeFaces(sight)) {
        QColor fill = palette.color(QPalette::Button);
        fill = fill.lighter(static_cast<int>(80 + 40 * face.towards));
        fill.setAlpha(225);
        painter.setPen(QPen(palette.color(QPalette::Mid), 1));
        painter.setBrush(fill);
        painter.drawPolygon(face.outline);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.color(QPalette::Highlight));
        for (const Cell& cell : face.cells) {
            if (m_hovered && cell.side == *m_hovered)
                painter.drawPolygon(cell.outline);
        }
        const QPolygonF sheet(QVector<QPointF>{{0, 0}, {Sheet, 0}, {Sheet, Sheet}, {0, Sheet}});
        QTransform onFace;
        if (face.towards < 0.3F || !QTransform::quadToQuad(sheet, face.outline, onFace))
            continue;
        painter.fillPath(onFace.map(outlineOf(face.text)), palette.color(QPalette::ButtonText));
    }
}

// Kept: a font engine may give outlines that differ a little the second time, and pictures with them.
const QPainterPath& OrientationCube::outlineOf(const QString& text)
{
    if (m_font != m_view.font())
        m_outlines.clear();
    m_font = m_view.font();
    const auto [known, isNew] = m_outlines.emplace(text, QPainterPath());
    if (isNew) {
        QFont font = m_font;
        font.setPixelSize(15);
        known->second.addText(0, 0, font, text);
        known->second.translate(QPointF(Sheet, Sheet) / 2 - known->second.boundingRect().center());
    }
    return known->second;
}

std::optional<QCursor> OrientationCube::getCursor() const
{
    return m_hovered ? std::optional<QCursor>(Qt::PointingHandCursor) : std::nullopt;
}

} // namespace scopix
