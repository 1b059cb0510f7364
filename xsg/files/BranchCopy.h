// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

namespace xsg
{

/// A copy of the node and of all that is below it: values, flags and names, what is shared within it, and
/// connections. What leads out of the branch, connections and references, leads to the same in the copy. Null
/// where the branch holds something that cannot be copied, as only the program around the inspector knows it.
XSG_API SoRef<SoNode> copyBranch(SoNode* branch);

} // namespace xsg
