// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

namespace xsg
{

/// The type as a scene file has it, that of a node of an unknown type included.
XSG_API SbName typeNameOf(const SoNode& node);
/// What a path calls the node: its name, or its type where it has none.
XSG_API SbName labelOf(const SoNode& node);

} // namespace xsg
