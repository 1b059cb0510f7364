// SPDX-License-Identifier: MIT
#pragma once

#include "OsgProperty.h"

namespace scopix::live
{

using OsgProperties = std::vector<std::unique_ptr<OsgProperty>>;

/// Properties that the serializers of an object's class write as a whole, or not at all, and that an
/// inspector edits one by one: colours of materials, modes and attributes of state sets, texts, ranges and so
/// on.
OsgProperties makeExtraProperties(const osg::Object& object);

} // namespace scopix::live
