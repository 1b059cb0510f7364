// SPDX-License-Identifier: MIT
#pragma once

#include "OsgClasses.h"
#include "OsgScene.h"

#include <string_view>

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
    /// The stamps of all properties, one behind the other, in the order of the class's properties.
    struct Stamps {
        std::vector<std::uint8_t> bytes;
        std::vector<std::size_t> ends;
    };
    struct Watched {
        bool values = false;
        std::vector<const osg::Node*> held;  // all of the group, only to be compared
        std::vector<const osg::Node*> shown; // without those of this library
        Stamps stamps;
    };

    std::vector<const osg::Node*> shownIn(osg::Object& object) const;
    static std::string_view stampOf(const Stamps& stamps, std::size_t property);
    void takeStamps(osg::Object& object, Stamps& stamps);
    void compare(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes);
    void compareChildren(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes);
    void compareValues(NodeId id, osg::Object& object, Watched& watched, AdapterChanges& changes);

    OsgObjects& m_objects;
    OsgClasses& m_classes;
    OsgViewers& m_viewers;
    OsgScene& m_scene;
    std::map<NodeId, Watched> m_watched;
    Stamps m_present; // kept for its memory
    std::vector<osg::Camera*> m_roots;
};

} // namespace scopix::live
