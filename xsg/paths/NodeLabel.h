// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <string>

namespace xsg
{

/// The type as a scene file has it, that of a node of an unknown type included.
XSG_API SbName typeNameOf(const SoNode& node);
/// What a path calls the node: its name, or its type where it has none.
XSG_API SbName labelOf(const SoNode& node);
/// What was typed as UTF-8, as names may hold it in Latin-1; empty where that is the same or cannot be.
XSG_API std::string latin1Of(const std::string& label);

} // namespace xsg
