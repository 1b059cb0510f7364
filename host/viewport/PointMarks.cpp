// SPDX-License-Identifier: MIT
#include "viewport/PointMarks.h"

#include "viewport/SceneView.h"

#include <xsg/nodes/shapes/SoShape.h>
#include <xsg/render/SoOverlay.h>

#include <QPalette>

#include <cmath>

namespace scopix
{

namespace
{

constexpr float Size = 7;    // pixels at a density of 1
constexpr float RimSize = 9; // with the rim that sets it off
constexpr float Hidden = 0.35F;

// The coordinates at the end of a path, once for each instance of it.
class PlaceMatrices : private SoPathTraversal
{
public:
    explicit PlaceMatrices(const NodeIds& place)
        : SoPathTraversal(place)
    {
        // What is chosen by distance counts whole: where the eye is does not matter here.
        state().chooseAll = true;
    }
    std::vector<SbMatrix> find(SoNode* root)
    {
        traverse(root);
        return std::move(m_found);
    }

private:
    void enterGroup(SoGroup* group) override
    {
        take(group);
        SoPathTraversal::enterGroup(group);
    }
    void visitShape(SoShape* shape) override { take(shape); }
    void visitProperty(SoNode* node) override { take(node); }
    void take(const SoNode* node)
    {
        if (!isEnd(node))
            return;
        state().forEachInstance([this](const SbMatrix& matrix) { m_found.push_back(matrix); });
        stop();
    }

    std::vector<SbMatrix> m_found;
};

SbColor toColor(const QColor& c)
{
    return {static_cast<float>(c.redF()), static_cast<float>(c.greenF()), static_cast<float>(c.blueF())};
}

} // namespace

PointMarks::PointMarks(SceneView& view)
    : m_view(view)
    , m_sensor(sensorTriggered, this)
{
    m_view.addTool(this);
}

PointMarks::~PointMarks()
{
    m_view.removeTool(this);
}

void PointMarks::setScene(SoNode* root)
{
    m_root = SoRef<SoNode>(root);
    m_marks.clear();
    m_sensor.detach();
}

void PointMarks::set(const void* owner, const SoPath& place, std::vector<SbVec3f> points)
{
    const bool hadNone = m_marks.erase(owner) == 0;
    if (points.empty() && hadNone)
        return;
    points.resize(std::min(points.size(), Most));
    if (!points.empty() && !place.isEmpty() && place.getHead() == m_root.get())
        m_marks[owner] = {SoPathTraversal::idsOf(place), std::move(points), {}};
    changed();
}

void PointMarks::take(const PointMarks& other)
{
    if (m_marks.empty() && other.m_marks.empty())
        return;
    m_marks = other.m_marks;
    changed();
}

void PointMarks::changed()
{
    m_sensor.attach(m_marks.empty() ? nullptr : m_root.get());
    m_isOld = true;
    m_view.redraw();
}

void PointMarks::sensorTriggered(void* self, SoSensor* /*sensor*/)
{
    auto* marks = static_cast<PointMarks*>(self);
    marks->m_isOld = true;
    marks->m_view.redraw();
}

void PointMarks::place()
{
    if (!std::exchange(m_isOld, false) || !m_root)
        return;
    for (auto& [owner, marks] : m_marks) {
        marks.world.clear();
        for (const SbMatrix& matrix : PlaceMatrices(marks.place).find(m_root.get())) {
            for (const SbVec3f& point : marks.points) {
                if (marks.world.size() < Most)
                    marks.world.push_back(matrix.multPoint(point));
            }
        }
    }
}

std::size_t PointMarks::count()
{
    place();
    std::size_t sum = 0;
    for (const auto& [owner, marks] : m_marks)
        sum += marks.world.size();
    return sum;
}

void PointMarks::draw(SoOverlay& overlay, const ViewSight& /*sight*/)
{
    place();
    for (const auto& [owner, marks] : m_marks) {
        for (const SbVec3f& point : marks.world)
            drawPoint(overlay, point);
    }
}

void PointMarks::drawPoint(SoOverlay& overlay, const SbVec3f& point) const
{
    if (!std::isfinite(point[0] + point[1] + point[2]))
        return;
    const QColor color = m_view.palette().color(QPalette::Highlight);
    const QColor rim = color.lightnessF() > 0.5 ? Qt::black : Qt::white;
    const auto density = static_cast<float>(m_view.devicePixelRatioF());
    overlay.addPoint(point, toColor(rim), RimSize * density, SoOverlay::Depth::WithinScene);
    overlay.addPoint(point, toColor(color), Size * density, SoOverlay::Depth::WithinScene);
    overlay.addPoint(point, {toColor(color), Hidden}, Size * density);
}

} // namespace scopix
