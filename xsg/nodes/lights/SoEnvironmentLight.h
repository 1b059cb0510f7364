// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFColor.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/base/SoNode.h>

/// The light of the surroundings, which the physically based surfaces that follow mirror and scatter: a
/// ground, a horizon and a sky above it, the y axis of its coordinates pointing up. Takes the place of an
/// earlier one and, for these surfaces, of the headlight. Colours are linear.
class XSG_API SoEnvironmentLight : public SoTyped<SoEnvironmentLight, SoNode>
{
public:
    static constexpr const char* ClassName = "EnvironmentLight";

    SoSFBool on{this, "on", true};
    SoSFFloat intensity{this, "intensity", 1.0F};
    SoSFColor skyColor{this, "skyColor", {1, 1, 1}}; // straight above
    SoSFColor horizonColor{this, "horizonColor", {0.8F, 0.8F, 0.8F}};
    SoSFColor groundColor{this, "groundColor", {0.3F, 0.3F, 0.3F}};

    void apply(SoState& state) const override;
};

extern template class SoTyped<SoEnvironmentLight, SoNode>;
