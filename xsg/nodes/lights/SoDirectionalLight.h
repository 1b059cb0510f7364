// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFVec3f.h>
#include <xsg/nodes/lights/SoLight.h>

/// Light that comes from far away, everywhere from the same direction.
class XSG_API SoDirectionalLight : public SoTyped<SoDirectionalLight, SoLight>
{
public:
    static constexpr const char* ClassName = "DirectionalLight";

    SoSFVec3f direction{this, "direction", {0, 0, -1}}; // in which the light shines

    SoLightSource getSource(const SbMatrix& toWorld) const override;
};

extern template class SoTyped<SoDirectionalLight, SoLight>;
