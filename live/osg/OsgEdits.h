// SPDX-License-Identifier: MIT
#pragma once

#include "OsgClasses.h"
#include "OsgViewers.h"

#include <osg/Geometry>

namespace scopix::live
{

/// Writes values, such that the picture follows and OpenGL never reads beyond what a geometry has. Between frames only.
class OsgEdits
{
public:
    OsgEdits(OsgObjects& objects, OsgClasses& classes, OsgViewers& viewers);

    WriteResult write(NodeId id, const std::string& property, const Value& value);

private:
    using Objects = std::vector<osg::ref_ptr<osg::Object>>;

    Objects touchedBy(NodeId id) const;

    OsgObjects& m_objects;
    OsgClasses& m_classes;
    OsgViewers& m_viewers;
};

/// Whether everything that the geometry draws lies within its arrays.
bool isWithinArrays(const osg::Geometry& geometry);

} // namespace scopix::live
