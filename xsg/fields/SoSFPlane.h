// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A plane: normal and distance from the origin.
class XSG_API SoSFPlane : public SoTyped<SoSFPlane, SoSValue<SbPlane>>
{
public:
    static constexpr const char* ClassName = "SFPlane";

    SoSFPlane() = default;
    SoSFPlane(SoFieldContainer* owner, const char* name, const SbPlane& value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<SbPlane>;
extern template class SoTyped<SoSFPlane, SoSValue<SbPlane>>;
