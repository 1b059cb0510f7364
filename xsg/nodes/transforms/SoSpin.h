// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFBool.h>
#include <xsg/fields/SoSFFloat.h>
#include <xsg/fields/SoSFTime.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/nodes/transforms/SoTransformation.h>
#include <xsg/values/SbMatrix.h>

/// Turns what follows it, faster or slower, as time goes by. Whoever shows a scene calls advanceAll() now and
/// then; nothing turns by itself.
class XSG_API SoSpin : public SoTyped<SoSpin, SoTransformation>
{
public:
    static constexpr const char* ClassName = "Spin";

    SoSFBool on{this, "on", true}; // whether advanceAll() moves it
    SoSFVec3f axis{this, "axis", {0, 1, 0}};
    SoSFFloat turnsPerSecond{this, "turnsPerSecond", 0.25F};
    SoSFTime time{this, "time"}; // the angle is time x turnsPerSecond turns

    SoSpin();
    SbMatrix getMatrix() const override;

    /// Lets `elapsed` pass for every one that is on and stands below `root`, or anywhere where that is null;
    /// true when there was one, so that a picture needs to be drawn.
    static bool advanceAll(SbTime elapsed, const SoNode* root = nullptr);
    /// Whether time would turn anything there.
    static bool isAnyTurning(const SoNode* root = nullptr);

protected:
    ~SoSpin() override;

private:
    bool isTurning(const SoNode* root) const;
};

extern template class SoTyped<SoSpin, SoTransformation>;
