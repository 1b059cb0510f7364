// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFVec3f.h>
#include <xsg/nodes/lights/SoLight.h>

/// Light that shines from a place in all directions.
class XSG_API SoPointLight : public SoTyped<SoPointLight, SoLight>
{
public:
    static constexpr const char* ClassName = "PointLight";

    SoSFVec3f location{this, "location", {0, 0, 1}};
    SoSFVec3f attenuation{this, "attenuation", {1, 0, 0}}; // constant, linear, quadratic with distance

    SoLightSource getSource(const SbMatrix& toWorld) const override;
};

extern template class SoTyped<SoPointLight, SoLight>;
