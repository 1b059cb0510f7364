// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>

#include <functional>

namespace xsg
{

/// A copy of the node and of all that is below it: values, flags and names, what is shared within it, and
/// connections. What leads out of the branch, connections and references, leads to the same in the copy. Null
/// where the branch holds something that cannot be copied, as only the program around the inspector knows it.
XSG_API SoRef<SoNode> copyBranch(SoNode* branch);
/// The same, calling `goOn` with the part that is done, from 0 to 1, each few milliseconds; what it throws
/// leaves no copy. The branch must stay as it is meanwhile.
XSG_API SoRef<SoNode> copyBranch(SoNode* branch, const std::function<void(double)>& goOn);

} // namespace xsg
