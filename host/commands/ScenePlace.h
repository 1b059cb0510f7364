// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/paths/ChildTable.h>

#include <string>

namespace scopix
{

/// What a path that was typed names: a node, or a field of it.
struct ScenePlace {
    SoNode* node = nullptr;   // null where there is no such place
    SoField* field = nullptr; // null for a node
    int index = -1;           // of one value of the field
};

/// Says why where there is none; `file` is named in that.
ScenePlace findPlace(xsg::SceneLookup& lookup, const std::string& path, const std::string& file);

} // namespace scopix
