// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/nodes/lights/SoLight.h>

/// Light that shines from a place within a cone.
class XSG_API SoSpotLight : public SoTyped<SoSpotLight, SoLight>
{
public:
    static constexpr const char* ClassName = "SpotLight";

    SoSFVec3f location{this, "location", {0, 0, 1}};
    SoSFVec3f direction{this, "direction", {0, 0, -1}};    // of the cone's axis
    SoSFFloat cutOffAngle{this, "cutOffAngle", 0.785398F}; // between the axis and the edge, in radians
    SoSFFloat dropOff{this, "dropOff", 0.0F}; // 0 evenly bright; the higher, the darker towards the edge
    SoSFVec3f attenuation{this, "attenuation", {1, 0, 0}}; // constant, linear, quadratic with distance

    SoLightSource getSource(const SbMatrix& toWorld) const override;
};

extern template class SoTyped<SoSpotLight, SoLight>;
