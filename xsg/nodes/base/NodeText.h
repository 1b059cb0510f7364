// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/ValueText.h>

namespace xsg
{

/// The text of a reference to a node: its name, or NULL. A node without a name is written as its type and a
/// number that it keeps, as in "Sphere#12", so that the text finds it again while it lives.
template <>
struct XSG_API ValueText<SoRef<SoNode>> {
    static void write(std::string& out, const SoRef<SoNode>& node);
    static bool read(TextReader& in, SoRef<SoNode>& node);
};

} // namespace xsg
