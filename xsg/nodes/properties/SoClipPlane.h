// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFPlane.h>
#include <xsg/nodes/base/SoNode.h>

/// Cuts what follows it: what lies on the side the plane's normal points to stays.
class XSG_API SoClipPlane : public SoTyped<SoClipPlane, SoNode>
{
public:
    static constexpr const char* ClassName = "ClipPlane";

    SoSFPlane plane{this, "plane"};
    SoSFBool on{this, "on", true};

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoClipPlane, SoNode>;
