// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

namespace scopix
{

/// The scene that is open when no file is: a few lit solids, read from the resources.
SoRef<SoNode> makeDefaultScene();

} // namespace scopix
