// SPDX-License-Identifier: MIT
#pragma once

#include "ExtraProperties.h"

#include <map>
#include <typeindex>
#include <unordered_map>

namespace scopix::live
{

/// The properties of every class whose objects have been looked at: those that OpenSceneGraph's serializers
/// know, and more. A class that has no serializers, as those of a program's own, has those of the nearest
/// class that it derives from. For one thread.
class OsgClasses
{
public:
    const OsgProperties& propertiesOf(const osg::Object& object);
    /// None where the class has no such property.
    const OsgProperty* find(const osg::Object& object, const std::string& name);

private:
    struct Class {
        OsgProperties properties;
        std::unordered_map<std::string, const OsgProperty*> byName;
    };

    const Class& classOf(const osg::Object& object);

    std::unordered_map<std::type_index, Class> m_classes;
};

} // namespace scopix::live
