// SPDX-License-Identifier: MIT
#pragma once

#include <xsg/fields/SoSValue.h>

/// A single-precision number.
class XSG_API SoSFFloat : public SoTyped<SoSFFloat, SoSValue<float>>
{
public:
    static constexpr const char* ClassName = "SFFloat";

    SoSFFloat() = default;
    SoSFFloat(SoFieldContainer* owner, const char* name, float value = {})
        : SoTyped(owner, name, value)
    {
    }
};

extern template class SoSValue<float>;
extern template class SoTyped<SoSFFloat, SoSValue<float>>;
