// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/paths/ChildTable.h>

#include <string>

class SoField;

namespace scopix
{

/// Gives a field, or one value of a list, the value that a text says: as a scene file has it, a node by its
/// path, or for each number a formula, separated by blanks or commas, in which x is the number that is there.
/// Units have to be those of the field, and make of a number one in radians, metres or seconds; its limits
/// are those of the field's description. False, the end of a sentence, and no change where it cannot.
bool assign(SoField& field, int index, const std::string& text, xsg::SceneLookup& lookup,
            std::string& problem);

} // namespace scopix
