// SPDX-License-Identifier: MIT
#pragma once

#include <osg/Group>

namespace scopix::live
{

/// Holds what is drawn over the scene of a program, and is seen by nothing but the walk that draws: it has no
/// extent, cannot be picked, and the program's own visitors find it empty.
class OwnNode : public osg::Group
{
public:
    OwnNode() { setCullingActive(false); }

    void traverse(osg::NodeVisitor& visitor) override
    {
        if (visitor.getVisitorType() == osg::NodeVisitor::CULL_VISITOR)
            osg::Group::traverse(visitor);
    }
    osg::BoundingSphere computeBound() const override { return {}; }

protected:
    ~OwnNode() override = default;
};

} // namespace scopix::live
