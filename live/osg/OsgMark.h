// SPDX-License-Identifier: MIT
#pragma once

#include "OsgViewing.h"
#include "OwnNode.h"

#include <osg/MatrixTransform>

namespace scopix::live
{

/// Draws a box around the selected node in the program's own view, through whatever lies before it. Between
/// frames only.
class OsgMark
{
public:
    OsgMark(OsgObjects& objects, OsgViewers& viewers);

    /// 0 takes the mark away.
    void mark(NodeId id);
    /// Follows the node; to be called once a frame. Costs nothing where nothing is marked.
    void follow();

private:
    void place(osg::Node& node);
    void hang();
    void takeAway();

    OsgObjects& m_objects;
    OsgViewers& m_viewers;
    NodeId m_marked = 0;
    osg::ref_ptr<OwnNode> m_node;
    osg::ref_ptr<osg::MatrixTransform> m_place;
    std::vector<osg::observer_ptr<osg::Camera>> m_cameras;
    osg::BoundingSphere m_bound; // that the box was made for
    osg::Matrixd m_matrix;
};

} // namespace scopix::live
