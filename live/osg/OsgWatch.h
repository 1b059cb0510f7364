// SPDX-License-Identifier: MIT
#pragma once

#include "OsgClasses.h"
#include "OsgScene.h"

namespace scopix::live
{

/// Notices what differs from one frame to the next, of watched objects only.
class OsgWatch
{
public:
    OsgWatch(OsgObjects& objects, OsgClasses& classes, OsgViewers& viewers, OsgScene& scene);

    void watch(NodeId id, bool values);
    void unwatch(NodeId id);
    void clear();
    AdapterChanges takeChanges();

private:
    struct Watched {
        bool values = false;
        std::vector<const osg::Node*> children;
        std::vector<std::optional<Value>> stamps; // in the order of the class's properties
    };

    std::vector<const osg::Node*> childrenOf(osg::Object& object) const;
    std::vector<std::optional<Value>> stampsOf(osg::Object& object);
    void compare(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes);
    void compareValues(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes);

    OsgObjects& m_objects;
    OsgClasses& m_classes;
    OsgViewers& m_viewers;
    OsgScene& m_scene;
    std::map<NodeId, Watched> m_watched;
    std::vector<osg::Camera*> m_roots;
};

} // namespace scopix::live
