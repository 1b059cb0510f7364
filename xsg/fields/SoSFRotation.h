// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A rotation: the four stored numbers of a quaternion.
class XSG_API SoSFRotation : public SoTyped<SoSFRotation, SoSValue<SbRotation>>
{
public:
    static constexpr const char* ClassName = "SFRotation";

    SoSFRotation() = default;
    SoSFRotation(SoFieldContainer* owner, const char* name, const SbRotation& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbRotation>;
extern template class SoTyped<SoSFRotation, SoSValue<SbRotation>>;
