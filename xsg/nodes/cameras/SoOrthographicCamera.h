// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFFloat.h>
#include <xsg/nodes/cameras/SoCamera.h>

/// Sees everything in its size, however far it is.
class XSG_API SoOrthographicCamera : public SoTyped<SoOrthographicCamera, SoCamera>
{
public:
    static constexpr const char* ClassName = "OrthographicCamera";

    SoSFFloat height{this, "height", 2.0F}; // of what is seen, in the camera's coordinates

    SbMatrix getProjectionMatrix(float aspect) const override;

protected:
    float getFocalHeight() const override;
    SbVec3f frame(const Corners& corners, float aspect, float filled) override;
    void scaleView(float factor) override;
    float usableNear(float near, float far) const override;
};

extern template class SoTyped<SoOrthographicCamera, SoCamera>;
