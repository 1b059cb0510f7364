// SPDX-License-Identifier: MIT
#pragma once

#include "OsgProperty.h"

#include <osgDB/Serializer>

namespace scopix::live
{

/// The property that a serializer of OpenSceneGraph stands for: a number, vector, text, choice, object, list,
/// or what can only be shown as text. None for what is shown otherwise, as the children of a group.
std::unique_ptr<OsgProperty> makeSerializerProperty(osgDB::BaseSerializer& serializer,
                                                    osgDB::BaseSerializer::Type type);

} // namespace scopix::live
