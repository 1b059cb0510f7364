// SPDX-License-Identifier: MIT
// The scene that is open when no file is.
#pragma once

#include <xsg/nodes/groups/SoSeparator.h>

namespace scopix
{

/// A few lit solids, and a node that has a field of every type, so that every editor can be tried.
SoRef<SoSeparator> makeDefaultScene();

} // namespace scopix
