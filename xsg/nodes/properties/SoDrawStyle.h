// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFEnum.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>

/// Whether what follows is drawn filled, as its edges, as its points, or not at all.
class XSG_API SoDrawStyle : public SoTyped<SoDrawStyle, SoNode>
{
public:
    static constexpr const char* ClassName = "DrawStyle";
    enum Style { Filled = 0, Lines = 1, Points = 2, Invisible = 3 };

    SoSFEnum style{this, "style", getStyleNames(), Filled};
    SoSFFloat lineWidth{this, "lineWidth", 1.0F}; // in pixels
    SoSFFloat pointSize{this, "pointSize", 1.0F}; // in pixels

    static SoEnumTablePtr getStyleNames();
    bool isVisible() const { return style.isIgnored() || style.getValue() != Invisible; }
    void apply(SoState& state) const override;
};

extern template class SoTyped<SoDrawStyle, SoNode>;
