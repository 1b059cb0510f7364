// SPDX-License-Identifier: MIT
#include "services/Selection.h"

#include <xsg/actions/SoPath.h>
#include <xsg/core/SoField.h>
#include <xsg/core/SoFieldContainer.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace scopix
{

namespace
{

// Keeps a container alive while its selection is reported. One that nobody references yet still has no
// reference afterwards.
class Keep
{
public:
    explicit Keep(const SoFieldContainer* container)
        : m_container(container)
        , m_referenced(container && container->getRefCount() > 0)
    {
        if (m_container)
            m_container->ref();
    }
    ~Keep()
    {
        if (!m_container)
            return;
        if (m_referenced)
            m_container->unref();
        else
            m_container->unrefNoDelete();
    }
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;

private:
    const SoFieldContainer* m_container;
    bool m_referenced;
};

SoFieldContainer* containerOf(const SoField* field)
{
    return field ? field->getContainer() : nullptr;
}

Selection::Place placeOf(const SoPath& path)
{
    Selection::Place place{path.getTail(), {}};
    for (int i = 0; i < path.getLength(); ++i)
        place.way.push_back(path.getNode(i));
    return place;
}

// Each node once, where it stands last.
void keepLastOfEach(std::vector<Selection::Place>& places)
{
    std::unordered_set<const SoFieldContainer*> seen;
    std::vector<Selection::Place> kept;
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        if (place->node && seen.insert(place->node).second)
            kept.push_back(std::move(*place));
    }
    std::reverse(kept.begin(), kept.end());
    places.swap(kept);
}

// The ways that led through it lead nowhere.
std::vector<Selection::Place> without(const SoFieldContainer* dying, std::vector<Selection::Place> places)
{
    const auto isOfIt = [dying](const Selection::Place& place) { return place.node == dying; };
    places.erase(std::remove_if(places.begin(), places.end(), isOfIt), places.end());
    for (Selection::Place& place : places) {
        if (std::find(place.way.begin(), place.way.end(), dying) != place.way.end())
            place.way.clear();
    }
    return places;
}

} // namespace

Selection::Selection(QObject* parent)
    : QObject(parent)
{
}

void Selection::select(SoFieldContainer* node)
{
    request({Request::Node, node, nullptr, {}});
}

void Selection::select(const std::vector<SoPath>& paths)
{
    std::vector<Place> places;
    std::transform(paths.begin(), paths.end(), std::back_inserter(places), placeOf);
    select(std::move(places));
}

void Selection::select(const std::vector<SoFieldContainer*>& nodes)
{
    std::vector<Place> places;
    for (SoFieldContainer* node : nodes)
        places.push_back({node, {}});
    select(std::move(places));
}

void Selection::select(std::vector<Place> places)
{
    keepLastOfEach(places);
    SoFieldContainer* current = places.empty() ? nullptr : places.back().node;
    request({Request::Node, current, nullptr, std::move(places)});
}

bool Selection::isOrWasSelected(const SoFieldContainer* node) const
{
    return m_nodes.count(node) > 0 || (m_telling && m_formerNodes.count(node) > 0);
}

void Selection::select(SoField* field)
{
    request({Request::Field, containerOf(field), field, {}});
}

void Selection::clear()
{
    select(static_cast<SoFieldContainer*>(nullptr));
}

void Selection::reemit()
{
    request({Request::Again, nullptr, nullptr, {}});
}

void Selection::request(const Request& request)
{
    m_requests.push_back(request);
    if (m_telling)
        return;
    while (!m_requests.empty()) {
        const Request next = m_requests.front();
        m_requests.erase(m_requests.begin());
        process(next);
    }
}

void Selection::process(const Request& request)
{
    switch (request.kind) {
    case Request::Node:
        change({Request::Node, request.node, request.node == m_node ? m_field : nullptr, placesOf(request)},
               true);
        break;
    case Request::Field: {
        SoFieldContainer* node = request.node ? request.node : m_node;
        change({Request::Field, node, request.field, placesOf({Request::Field, node, nullptr, {}})},
               node != m_node);
        break;
    }
    case Request::Again:
        change({Request::Again, m_node, m_field, m_places}, true);
        break;
    }
}

// The node that is current already keeps its way, and what is selected with it where only a field is.
std::vector<Selection::Place> Selection::placesOf(const Request& request) const
{
    if (!request.node || !request.places.empty())
        return request.places;
    if (request.node != m_node)
        return {{request.node, {}}};
    return request.kind == Request::Field ? m_places : std::vector<Place>{m_places.back()};
}

void Selection::setPlaces(std::vector<Place> places)
{
    m_formerNodes.swap(m_nodes);
    m_nodes.clear();
    for (const Place& place : places)
        m_nodes.insert(place.node);
    m_places = std::move(places);
}

void Selection::change(const Request& to, bool tellNode)
{
    const Keep keepFormer(m_node);
    const Keep keepNew(to.node);
    const QScopedValueRollback<bool> telling(m_telling, true);
    m_formerNode = m_node;
    m_formerField = m_field;
    if (m_field && to.node != m_node) {
        m_field = nullptr;
        emit fieldChanged(nullptr);
    }
    setPlaces(to.places);
    m_node = to.node;
    m_field = to.field;
    if (tellNode)
        emit nodeChanged(m_node);
    if (to.kind != Request::Node || (to.field && to.node != m_formerNode))
        emit fieldChanged(m_field);
    emit changed();
}

void Selection::forget(const SoFieldContainer* dying)
{
    const auto isOver = [dying](Request& request) {
        const bool concernsMore = request.places.size() > 1;
        request.places = without(dying, std::move(request.places));
        if (request.node == dying && concernsMore)
            request.node = request.places.back().node;
        return request.node == dying;
    };
    m_requests.erase(std::remove_if(m_requests.begin(), m_requests.end(), isOver), m_requests.end());
    std::vector<Place> left = without(dying, m_places);
    if (m_nodes.count(dying) > 0) {
        SoFieldContainer* current = left.empty() ? nullptr : left.back().node;
        change({Request::Node, current, current == m_node ? m_field : nullptr, std::move(left)}, true);
    } else if (dying == containerOf(m_field)) {
        change({Request::Field, m_node, nullptr, std::move(left)}, false);
    } else {
        m_places = std::move(left);
    }
}

} // namespace scopix
