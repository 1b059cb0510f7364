// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoMValue.h>

/// Any number of values, each a plane: normal and distance from the origin.
class XSG_API SoMFPlane : public SoTyped<SoMFPlane, SoMValue<SbPlane>>
{
public:
    static constexpr const char* ClassName = "MFPlane";

    SoMFPlane() = default;
    SoMFPlane(SoFieldContainer* owner, const char* name, std::initializer_list<SbPlane> values = {})
        : SoTyped(owner, name, values)
    {
    }
};

extern template class SoMValue<SbPlane>;
extern template class SoTyped<SoMFPlane, SoMValue<SbPlane>>;
