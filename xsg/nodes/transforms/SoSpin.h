// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFTime.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/nodes/base/SoTimeSource.h>
#include <xsg/nodes/transforms/SoTransformation.h>
#include <xsg/values/SbMatrix.h>

/// Turns what follows it, faster or slower, as time passes at the time source.
class XSG_API SoSpin : public SoTyped<SoSpin, SoTransformation>, private SoTimeSource::Subscriber
{
public:
    static constexpr const char* ClassName = "Spin";

    SoSFBool on{this, "on", true}; // whether time moves it
    SoSFVec3f axis{this, "axis", {0, 1, 0}};
    SoSFFloat turnsPerSecond{this, "turnsPerSecond", 0.25F};
    SoSFTime time{this, "time"}; // the angle is time x turnsPerSecond turns

    SoSpin();
    SbMatrix getMatrix() const override;

protected:
    ~SoSpin() override;

private:
    bool isMoving() const override;
    void advance(SbTime elapsed) override;
};

extern template class SoTyped<SoSpin, SoTransformation>;
