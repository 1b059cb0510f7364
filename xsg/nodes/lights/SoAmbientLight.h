// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>

/// Light that comes evenly from everywhere; takes the place of an earlier one.
class XSG_API SoAmbientLight : public SoTyped<SoAmbientLight, SoNode>
{
public:
    static constexpr const char* ClassName = "AmbientLight";

    SoSFFloat intensity{this, "intensity", 0.2F};
    SoSFColor color{this, "color", {1, 1, 1}};

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoAmbientLight, SoNode>;
