// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSFRotation.h>
#include <xsg/fields/SoSFVec3f.h>
#include <xsg/nodes/transforms/SoTransformation.h>

/// Scales, then turns, then moves what follows it. An ignored field takes no part.
class XSG_API SoTransform : public SoTyped<SoTransform, SoTransformation>
{
public:
    static constexpr const char* ClassName = "Transform";

    SoSFVec3f translation{this, "translation"};
    SoSFRotation rotation{this, "rotation"};
    SoSFVec3f scaleFactor{this, "scaleFactor", {1, 1, 1}};
    SoSFRotation scaleOrientation{this, "scaleOrientation"}; // the axes along which it scales
    SoSFVec3f center{this, "center"};                        // stays in place while turning and scaling

    SbMatrix getMatrix() const override;

private:
    SbMatrix makeMatrix() const;

    struct Made {
        SbMatrix matrix;
        std::uint32_t fieldChanges = 0; // for which it holds
        bool isValid = false;
    };
    mutable Made m_made;
};

extern template class SoTyped<SoTransform, SoTransformation>;
