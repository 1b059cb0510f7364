// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/base/SoNode.h>
#include <xsg/values/XsgText.h>

/// The text of a reference to a node: its name, or NULL. A node without a name is told by its type and a
/// number that it keeps, as in "Sphere#12", so that the text finds it again while it lives.
template <>
struct XSG_API XsgText<SoRef<SoNode>> {
    static void write(std::string& out, const SoRef<SoNode>& node);
    static bool read(XsgTextReader& in, SoRef<SoNode>& node);
};
