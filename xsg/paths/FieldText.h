// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/paths/NodePlaces.h>

#include <string>

class SoField;

namespace xsg
{

/// The value as a scene file has it, nodes that it refers to by their paths; "NULL" for one outside of the
/// scene.
XSG_API std::string fieldText(const SoField& field, NodePlaces& places);

} // namespace xsg
