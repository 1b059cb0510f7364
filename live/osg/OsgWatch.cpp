// SPDX-License-Identifier: MIT
#include "OsgWatch.h"

#include <osg/StateAttribute>

namespace scopix::live
{

namespace
{

std::vector<const osg::Node*> heldBy(const osg::Object& object)
{
    std::vector<const osg::Node*> held;
    const osg::Node* node = object.asNode();
    const osg::Group* group = node ? node->asGroup() : nullptr;
    for (unsigned i = 0; group && i < group->getNumChildren(); ++i)
        held.push_back(group->getChild(i));
    return held;
}

/// Is asked each frame, of groups with many children too.
bool isHeldBy(const osg::Object& object, const std::vector<const osg::Node*>& held)
{
    const osg::Node* node = object.asNode();
    const osg::Group* group = node ? node->asGroup() : nullptr;
    if (held.size() != (group ? group->getNumChildren() : 0))
        return false;
    for (unsigned i = 0; i < held.size(); ++i)
        if (group->getChild(i) != held[i])
            return false;
    return true;
}

} // namespace

OsgWatch::OsgWatch(OsgObjects& objects, OsgClasses& classes, OsgViewers& viewers, OsgScene& scene)
    : m_objects(objects)
    , m_classes(classes)
    , m_viewers(viewers)
    , m_scene(scene)
{
}

void OsgWatch::watch(NodeId id, bool values)
{
    const osg::ref_ptr<osg::Object> object = m_objects.find(id);
    if (!object)
        return;
    Watched& watched = m_watched[id];
    watched.values = values;
    watched.held = heldBy(*object);
    watched.shown = shownIn(*object);
    watched.stamps = Stamps();
    if (values)
        takeStamps(*object, watched.stamps);
}

void OsgWatch::unwatch(NodeId id)
{
    m_watched.erase(id);
}

void OsgWatch::clear()
{
    m_watched.clear();
    m_roots.clear();
}

AdapterChanges OsgWatch::takeChanges()
{
    AdapterChanges changes;
    for (auto& [id, watched] : m_watched) {
        if (const osg::ref_ptr<osg::Object> object = m_objects.find(id))
            compare(id, *object, watched, changes);
        else
            changes.ended.push_back(id);
    }
    for (NodeId ended : changes.ended)
        m_watched.erase(ended);
    std::vector<osg::Camera*> roots = m_viewers.cameras();
    changes.roots = roots != m_roots;
    m_roots = std::move(roots);
    return changes;
}

std::vector<const osg::Node*> OsgWatch::shownIn(osg::Object& object) const
{
    const std::vector<osg::Node*> children = m_scene.childrenOf(object);
    return {children.begin(), children.end()};
}

void OsgWatch::takeStamps(osg::Object& object, Stamps& stamps)
{
    stamps.bytes.clear();
    stamps.ends.clear();
    for (const auto& property : m_classes.propertiesOf(object)) {
        property->stamp(object, m_objects, stamps.bytes);
        stamps.ends.push_back(stamps.bytes.size());
    }
}

void OsgWatch::compare(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes)
{
    compareChildren(id, object, watched, changes);
    if (watched.values)
        compareValues(id, object, watched, changes);
}

void OsgWatch::compareChildren(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes)
{
    if (isHeldBy(object, watched.held))
        return;
    watched.held = heldBy(object);
    std::vector<const osg::Node*> shown = shownIn(object);
    if (shown != watched.shown)
        changes.children.push_back(id);
    watched.shown = std::move(shown);
}

void OsgWatch::compareValues(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes)
{
    // What is drawn with may still be read, and a picture let go, by a thread that draws.
    if (dynamic_cast<osg::StateAttribute*>(&object) && !m_viewers.waitForDrawing())
        return;
    takeStamps(object, m_present);
    const Stamps& former = watched.stamps;
    if (m_present.bytes == former.bytes && m_present.ends == former.ends)
        return;
    const OsgProperties& properties = m_classes.propertiesOf(object);
    for (std::size_t i = 0; i < m_present.ends.size() && i < former.ends.size(); ++i)
        if (stampOf(m_present, i) != stampOf(former, i))
            changes.properties.push_back({id, properties[i]->name()});
    std::swap(watched.stamps, m_present);
}

std::string_view OsgWatch::stampOf(const Stamps& stamps, std::size_t property)
{
    const std::size_t start = property ? stamps.ends[property - 1] : 0;
    return {reinterpret_cast<const char*>(stamps.bytes.data()) + start, stamps.ends[property] - start};
}

} // namespace scopix::live
