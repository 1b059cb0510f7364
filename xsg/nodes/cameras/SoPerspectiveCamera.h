// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/nodes/cameras/SoCamera.h>

/// Sees as an eye does: what is far is small.
class XSG_API SoPerspectiveCamera : public SoTyped<SoPerspectiveCamera, SoCamera>
{
public:
    static constexpr const char* ClassName = "PerspectiveCamera";

    SoSFFloat heightAngle{this, "heightAngle", 0.785398F}; // between the lower and the upper edge, in radians

    SbMatrix getProjectionMatrix(float aspect) const override;

protected:
    float getFocalHeight() const override;
    SbVec3f frame(const Corners& corners, float aspect, float filled) override;
    void scaleView(float factor) override;
    float usableNear(float near, float far) const override;

private:
    float usableAngle() const;
};

extern template class SoTyped<SoPerspectiveCamera, SoCamera>;
