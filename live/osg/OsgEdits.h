// SPDX-License-Identifier: MIT
#pragma once

#include "OsgClasses.h"
#include "OsgViewers.h"

namespace scopix::live
{

/// Writes values, such that the picture follows and the program never reads beyond what it has. Between
/// frames only.
class OsgEdits
{
public:
    OsgEdits(OsgObjects& objects, OsgClasses& classes, OsgViewers& viewers);

    /// What the copying of a class forgets.
    void copyValues(osg::Object& from, osg::Object& to);
    WriteResult write(NodeId id, const std::string& property, const Value& value);

private:
    using Objects = std::vector<osg::ref_ptr<osg::Object>>;

    Objects touchedBy(NodeId id) const;

    OsgObjects& m_objects;
    OsgClasses& m_classes;
    OsgViewers& m_viewers;
};

} // namespace scopix::live
