// SPDX-License-Identifier: MIT
#include "table/VertexLink.h"

#include <scopix/SpxSceneServices.h>
#include <xsg/nodes/properties/SoPoints.h>

#include <algorithm>

namespace inspector
{

namespace
{

constexpr std::size_t MostMarked = 20'000;
constexpr double Near = 12; // pixels between a click and the vertex that it means

// Where a node stands in the scene; of several places, the first.
SoPath firstPathTo(SoNode* node, const SoNode* root)
{
    std::vector<SoNode*> nodes{node};
    while (nodes.back() != root && !nodes.back()->getParents().empty())
        nodes.push_back(nodes.back()->getParents().front());
    SoPath path;
    if (nodes.back() == root)
        std::for_each(nodes.rbegin(), nodes.rend(), [&path](SoNode* each) { path.append(each); });
    return path;
}

} // namespace

VertexLink::VertexLink(TableSession& session, Click click)
    : QObject(&session)
    , m_session(session)
    , m_click(click)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &VertexLink::mark);
    connect(&m_points, &SpxWatcher::changed, this, &VertexLink::restart);
}

VertexLink::~VertexLink()
{
    stop();
}

void VertexLink::restart()
{
    if (SpxViewServices::getInstance())
        m_soon.start();
}

void VertexLink::stop()
{
    m_soon.stop();
    m_points.stop();
    listen(false);
    SpxViewServices* view = SpxViewServices::getInstance();
    if (view && std::exchange(m_hasMarks, false))
        view->setMarkedPoints(this, {}, {});
}

void VertexLink::listen(bool on)
{
    SpxViewServices* view = SpxViewServices::getInstance();
    if (!view || on == std::exchange(m_isListening, on))
        return;
    on ? view->addPickListener(this) : view->removePickListener(this);
}

SoPath VertexLink::pathToList() const
{
    const SpxSceneServices* scene = SpxSceneServices::getInstance();
    auto* node = dynamic_cast<SoNode*>(m_session.list() ? m_session.list()->getContainer() : nullptr);
    if (!scene || !node || !scene->getSceneRoot())
        return {};
    const SoPath selected = scene->getSelectedPath();
    return selected.getTail() == node ? selected : firstPathTo(node, scene->getSceneRoot());
}

VertexUse VertexLink::findUse() const
{
    const SoPath path = m_session.view.isVisible() ? pathToList() : SoPath();
    return path.isEmpty() ? VertexUse() : VertexUse::find(path, *m_session.list());
}

void VertexLink::mark()
{
    SpxViewServices* view = SpxViewServices::getInstance();
    if (!view)
        return;
    std::vector<SbVec3f> points;
    const SoPath place = markedPoints(points);
    if (!points.empty() || m_hasMarks)
        view->setMarkedPoints(this, place, points);
    m_hasMarks = !points.empty();
}

SoPath VertexLink::markedPoints(std::vector<SbVec3f>& points)
{
    const VertexUse use = findUse();
    listen(use.kind != VertexUse::Kind::None);
    if (use.kind == VertexUse::Kind::None)
        return {};
    auto* source = const_cast<SoPoints*>(use.points);
    if (m_points.getObject() != &source->points)
        m_points.watch(&source->points);
    const SoMField& list = *m_session.list();
    for (const RowBand& band : m_session.selectedElements()) {
        for (int i = band.first; i <= band.last && i < list.getNum() && points.size() < MostMarked; ++i) {
            const int point = use.pointOf(list, i);
            if (point >= 0)
                points.push_back(use.points->points[point]);
        }
    }
    return use.shape;
}

// Beside a vertex, the click means the shape.
bool VertexLink::pointPicked(const SpxPickedPoint& picked)
{
    if (picked.nearest < 0 || picked.nearestDistance > Near)
        return false;
    const VertexUse use = findUse();
    if (use.kind == VertexUse::Kind::None || picked.pointsNode.get() != use.points)
        return false;
    const int element = use.elementOf(*m_session.list(), picked.nearest, picked.face);
    const int row = element < 0 ? -1 : m_session.rows().rowOf(element);
    if (row < 0)
        return false;
    m_session.view.endTyping();
    m_session.view.goTo({row, std::max(m_session.view.selection().current().column, 0)});
    return m_click == Click::StaysHere;
}

} // namespace inspector
