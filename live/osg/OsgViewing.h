// SPDX-License-Identifier: MIT
#pragma once

#include "OsgScene.h"

namespace scopix::live
{

/// What is where in the windows of the program, and from where it is seen. Between frames only.
class OsgViewing
{
public:
    OsgViewing(OsgObjects& objects, OsgViewers& viewers);

    PickResult pick(double x, double y);
    std::optional<Value> box(NodeId id);
    std::optional<Camera> camera();
    bool lookFrom(const Camera& camera);

    /// The window that is shown: the first one of the program.
    osg::GraphicsContext* window() const;
    /// The camera that is drawn last into that window.
    osg::Camera* lastCamera() const;

private:
    std::vector<osg::Camera*> camerasOfWindow() const;
    osgViewer::View* view() const;

    OsgObjects& m_objects;
    OsgViewers& m_viewers;
};

/// The box of a node in the world; not valid where it has no extent.
osg::BoundingBox worldBox(osg::Node& node);

} // namespace scopix::live
