// SPDX-License-Identifier: MIT
#include "OsgAdapter.h"

#include <osg/StateAttribute>
#include <osg/Version>

namespace scopix::live
{

void OsgAdapter::betweenFrames(osgViewer::ViewerBase& viewer)
{
    m_viewers.betweenFrames(viewer);
    m_mark.follow();
}

std::string OsgAdapter::sceneGraphName() const
{
    return std::string("OpenSceneGraph ") + osgGetVersion();
}

Abilities OsgAdapter::abilities() const
{
    Abilities all;
    all.write = all.structure = all.pick = all.picture = all.mark = all.camera = all.find = true;
    return all;
}

std::vector<NodeInfo> OsgAdapter::roots()
{
    return m_scene.roots();
}

std::optional<NodeInfo> OsgAdapter::node(NodeId node)
{
    return m_scene.node(node);
}

std::vector<NodeInfo> OsgAdapter::children(NodeId node, std::uint32_t first, std::uint32_t count)
{
    return m_scene.children(node, first, count);
}

std::vector<std::vector<NodeId>> OsgAdapter::pathsTo(NodeId node, std::uint32_t limit)
{
    return m_scene.pathsTo(node, limit);
}

std::vector<PropertyInfo> OsgAdapter::properties(NodeId node)
{
    std::vector<PropertyInfo> infos;
    if (const osg::ref_ptr<osg::Object> object = m_objects.find(node))
        for (const auto& property : m_classes.propertiesOf(*object))
            infos.push_back(property->info(*object));
    return infos;
}

std::optional<Value> OsgAdapter::value(NodeId node, const std::string& name)
{
    const osg::ref_ptr<osg::Object> object = m_objects.find(node);
    const OsgProperty* property = object ? m_classes.find(*object, name) : nullptr;
    if (!property)
        return std::nullopt;
    // A texture lets its picture go when it is drawn first.
    if (dynamic_cast<osg::StateAttribute*>(object.get()) && !m_viewers.waitForDrawing())
        return std::nullopt;
    return property->read(*object, m_objects);
}

WriteResult OsgAdapter::write(NodeId node, const std::string& property, const Value& value)
{
    return m_edits.write(node, property, value);
}

std::vector<std::string> OsgAdapter::addableTypes(NodeId parent)
{
    return m_scene.addableTypes(parent);
}

StructureResult OsgAdapter::add(NodeId parent, std::uint32_t index, const std::string& type)
{
    return m_scene.add(parent, index, type);
}

StructureResult OsgAdapter::remove(NodeId parent, std::uint32_t index)
{
    return m_scene.remove(parent, index);
}

StructureResult OsgAdapter::insert(NodeId parent, std::uint32_t index, NodeId node)
{
    return m_scene.insert(parent, index, node);
}

StructureResult OsgAdapter::copy(NodeId parent, std::uint32_t index, NodeId node)
{
    return m_scene.copy(parent, index, node,
                        [this](osg::Node& from, osg::Node& to) { m_edits.copyValues(from, to); });
}

void OsgAdapter::forget(NodeId node)
{
    m_objects.forget(node);
}

void OsgAdapter::watch(NodeId node, bool values)
{
    m_watch.watch(node, values);
}

void OsgAdapter::unwatch(NodeId node)
{
    m_watch.unwatch(node);
}

AdapterChanges OsgAdapter::takeChanges()
{
    return m_watch.takeChanges();
}

PickResult OsgAdapter::pick(double x, double y)
{
    return m_viewing.pick(x, y);
}

std::optional<Value> OsgAdapter::box(NodeId node)
{
    return m_viewing.box(node);
}

void OsgAdapter::askPicture(std::uint32_t width, std::uint32_t height)
{
    m_picture.ask(width, height);
}

std::optional<Picture> OsgAdapter::takePicture()
{
    return m_picture.take();
}

void OsgAdapter::mark(NodeId node)
{
    m_mark.mark(node);
}

bool OsgAdapter::lookFrom(const Camera& camera)
{
    return m_viewing.lookFrom(camera);
}

std::optional<Camera> OsgAdapter::camera()
{
    return m_viewing.camera();
}

std::vector<std::vector<NodeId>> OsgAdapter::find(const std::string& query, std::uint32_t limit)
{
    return m_scene.find(query, limit);
}

std::vector<CounterInfo> OsgAdapter::counters()
{
    return OsgCounters::counters();
}

std::vector<double> OsgAdapter::counterValues()
{
    return m_counters.values();
}

FrameTable OsgAdapter::takeFrames()
{
    return m_counters.takeFrames();
}

std::vector<Notice> OsgAdapter::takeNotices()
{
    return m_notices.take();
}

/// Nothing that was added for inspectors is left once the last one has gone; what they changed stays.
void OsgAdapter::attached(bool isAttached)
{
    if (isAttached) {
        m_notices.start();
        return;
    }
    m_mark.mark(0);
    m_picture.stop();
    m_counters.stop();
    m_notices.stop();
    m_watch.clear();
    m_objects.clear();
}

} // namespace scopix::live
