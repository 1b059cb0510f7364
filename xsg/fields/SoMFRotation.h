// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a rotation: the four stored numbers of a quaternion.
class XSG_API SoMFRotation : public SoTyped<SoMFRotation, SoMValue<SbRotation>>
{
public:
    static constexpr const char* ClassName = "MFRotation";

    SoMFRotation() = default;
    SoMFRotation(SoFieldContainer* owner, const char* name, std::initializer_list<SbRotation> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbRotation>;
extern template class SoTyped<SoMFRotation, SoMValue<SbRotation>>;
