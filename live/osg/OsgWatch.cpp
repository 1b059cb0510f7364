// SPDX-License-Identifier: MIT
#include "OsgWatch.h"

#include <osg/StateAttribute>

namespace scopix::live
{

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
    watched.children = childrenOf(*object);
    watched.stamps = values ? stampsOf(*object) : std::vector<std::optional<Value>>();
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

std::vector<const osg::Node*> OsgWatch::childrenOf(osg::Object& object) const
{
    const std::vector<osg::Node*> children = m_scene.childrenOf(object);
    return {children.begin(), children.end()};
}

std::vector<std::optional<Value>> OsgWatch::stampsOf(osg::Object& object)
{
    std::vector<std::optional<Value>> stamps;
    for (const auto& property : m_classes.propertiesOf(object))
        stamps.push_back(property->stamp(object, m_objects));
    return stamps;
}

void OsgWatch::compare(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes)
{
    std::vector<const osg::Node*> children = childrenOf(object);
    if (children != watched.children)
        changes.children.push_back(id);
    watched.children = std::move(children);
    if (watched.values)
        compareValues(id, object, watched, changes);
}

void OsgWatch::compareValues(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes)
{
    // What is drawn with may still be read, and a picture let go, by a thread that draws.
    if (dynamic_cast<osg::StateAttribute*>(&object) && !m_viewers.waitForDrawing())
        return;
    std::vector<std::optional<Value>> stamps = stampsOf(object);
    const OsgProperties& properties = m_classes.propertiesOf(object);
    for (std::size_t i = 0; i < stamps.size() && i < watched.stamps.size(); ++i)
        if (stamps[i] != watched.stamps[i])
            changes.properties.push_back({id, properties[i]->name()});
    watched.stamps = std::move(stamps);
}

} // namespace scopix::live
